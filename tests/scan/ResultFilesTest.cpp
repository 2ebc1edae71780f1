#include <filesystem>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "core/Records.h"
#include "scan/ResultFiles.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/HeldFiles.h"
#include "tests/support/PluginUse.h"

namespace marlo {
namespace {

class ResultFilesTest : public test::ApplicationTest {
  protected:
    /// Adds one use of a plug-in to the lists, as a scan does.
    void AddUse(const std::string& project, const std::string& name, const std::string& state,
                const std::string& type = "VST    ") {
        test::AddUse(lists, QuotedFields({project, name, type}), state);
    }

    bool Create() { return CreateResultFiles(application, window, lists); }

    std::string Results() const { return folder.Read("resultfiles/results.csv"); }
    std::string Fln() const { return folder.Read("resultfiles/fln.csv"); }
    std::string Tln() const { return folder.Read("resultfiles/tln.csv"); }

    void WriteOldFiles() const {
        for (const char* name : {"results.csv", "fln.csv", "tln.csv"})
            folder.Write(std::string("resultfiles/") + name, "old");
    }

    SearchLists lists;
};

TEST_F(ResultFilesTest, ARunWithoutPluginsWritesThreeEmptyFiles) {
    WriteOldFiles();
    EXPECT_TRUE(Create());
    EXPECT_EQ(Results(), "");
    EXPECT_EQ(Fln(), "");
    EXPECT_EQ(Tln(), "");
    EXPECT_TRUE(window.events.empty());
}

TEST_F(ResultFilesTest, AnOldFileIsReplacedWhateverTheCaseOfItsName) {
    folder.Write("resultfiles/TLN.CSV", "old");
    AddUse("A.cpr", "Delay", "On");
    EXPECT_TRUE(Create());
    EXPECT_EQ(folder.Read("resultfiles/TLN.CSV"), "\"Delay\",\"VST\",\"On\"\r\n");
    const std::filesystem::directory_iterator files(folder.Path("resultfiles"));
    EXPECT_EQ(std::distance(begin(files), end(files)), 3);
}

TEST_F(ResultFilesTest, OnePluginInTwoProjectsIsMergedByProjectAndOverAll) {
    AddUse("A.cpr", "Delay", "Off");
    AddUse("A.cpr", "Delay", "On");
    AddUse("B.cpr", "Delay", "Off");
    EXPECT_TRUE(Create());
    EXPECT_EQ(Results(),
              "\"A.cpr\",\"Delay\",\"VST    \",\"Off\"\r\n"
              "\"A.cpr\",\"Delay\",\"VST    \",\"On\"\r\n"
              "\"B.cpr\",\"Delay\",\"VST    \",\"Off\"\r\n");
    EXPECT_EQ(Fln(),
              "\"A.cpr\",\"Delay\",\"VST    \",\"On\"\r\n"
              "\"B.cpr\",\"Delay\",\"VST    \",\"Off\"\r\n");
    EXPECT_EQ(Tln(), "\"Delay\",\"VST\",\"On\"\r\n");
}

TEST_F(ResultFilesTest, AVstTypeIsPaddedInTwoFilesAndTrimmedInTheThird) {
    AddUse("A.cpr", "Delay", "On");
    Create();
    EXPECT_NE(Results().find("\"VST    \""), std::string::npos);
    EXPECT_NE(Fln().find("\"VST    \""), std::string::npos);
    EXPECT_NE(Tln().find("\"VST\""), std::string::npos);
}

TEST_F(ResultFilesTest, CancelAtTheFirstQuestionWritesNothingFurtherAndIsNoFailure) {
    if (!test::HeldFiles::ArePossible())
        GTEST_SKIP() << test::kNoHeldFiles;
    WriteOldFiles();
    AddUse("A.cpr", "Delay", "On");
    window.answers = {MessageAnswer::Cancel};
    {
        const test::HeldFiles held({folder.Path("resultfiles/results.csv")});
        EXPECT_TRUE(Create());
    }
    EXPECT_EQ(Results(), "old");
    EXPECT_EQ(Fln(), "old");
    EXPECT_EQ(Tln(), "old");
    EXPECT_EQ(window.messages.size(), 1U);
}

TEST_F(ResultFilesTest, ALaterOnTurnsTheOverallStateOn) {
    AddUse("A.cpr", "Delay", "Off");
    AddUse("B.cpr", "Delay", "On");
    AddUse("C.cpr", "Delay", "Off");
    Create();
    EXPECT_EQ(Tln(), "\"Delay\",\"VST\",\"On\"\r\n");
}

TEST_F(ResultFilesTest, TheSameNameWithBothTypesGivesTwoOverallLines) {
    AddUse("A.cpr", "Echo", "On");
    AddUse("A.cpr", "Echo", "Off", "DirectX");
    Create();
    EXPECT_EQ(Tln(), "\"Echo\",\"VST\",\"On\"\r\n\"Echo\",\"DirectX\",\"Off\"\r\n");
}

TEST_F(ResultFilesTest, LinesAppearInOrderOfFirstAppearance) {
    AddUse("A.cpr", "z", "On");
    AddUse("A.cpr", "a", "On");
    AddUse("B.cpr", "m", "On");
    AddUse("B.cpr", "a", "On");
    Create();
    EXPECT_EQ(Tln(), "\"z\",\"VST\",\"On\"\r\n\"a\",\"VST\",\"On\"\r\n\"m\",\"VST\",\"On\"\r\n");
}

TEST_F(ResultFilesTest, ANameWithACommaGivesShiftedFieldsInTheOverallLine) {
    AddUse("A.cpr", "Chorus, Wide", "On");
    EXPECT_TRUE(Create());
    EXPECT_EQ(Fln(), "\"A.cpr\",\"Chorus, Wide\",\"VST    \",\"On\"\r\n");
    EXPECT_EQ(Tln(), "\"Chorus\",\"Wide\",\"On\"\r\n");
    EXPECT_EQ(Log(), "");
}

TEST_F(ResultFilesTest, NamesAreComparedWithRegardToCase) {
    AddUse("A.cpr", "delay", "On");
    AddUse("B.cpr", "Delay", "On");
    Create();
    EXPECT_EQ(Tln(), "\"delay\",\"VST\",\"On\"\r\n\"Delay\",\"VST\",\"On\"\r\n");
}

TEST_F(ResultFilesTest, BytesAreWrittenAsTheyAre) {
    AddUse("D:\\\xE9t\xE9.cpr", "R\xE9verb", "On");
    Create();
    EXPECT_EQ(Results(), "\"D:\\\xE9t\xE9.cpr\",\"R\xE9verb\",\"VST    \",\"On\"\r\n");
    EXPECT_EQ(Tln(), "\"R\xE9verb\",\"VST\",\"On\"\r\n");
}

TEST_F(ResultFilesTest, AKeyWithTooFewFieldsIsLoggedBySplittingAndStillWritten) {
    test::AddUse(lists, "\"A.cpr\",\"lost\"", kOn);
    EXPECT_TRUE(Create());
    EXPECT_EQ(Tln(), "\"lost\",\"\",\"On\"\r\n");
    EXPECT_EQ(Log(), LogLine(R"(SplitRecord: "A.cpr","lost" 3)", 5, "Invalid procedure call"));
}

TEST_F(ResultFilesTest, AMissingResultFolderIsLoggedWhereItCanBeAndFails) {
    std::filesystem::remove(folder.Path("resultfiles"));
    ErrorEntry logged;
    application.onErrorLogged = [&](const ErrorEntry& entry) { logged = entry; };
    EXPECT_FALSE(Create());
    EXPECT_EQ(logged.procedure, "CreateResultFiles");
    EXPECT_EQ(logged.number, 76);
    EXPECT_FALSE(folder.Exists("resultfiles"));
}

TEST_F(ResultFilesTest, FilesWrittenBeforeAFailureStayAsTheyAre) {
    WriteOldFiles();
    std::filesystem::remove(folder.Path("resultfiles/fln.csv"));
    folder.MakeFolder("resultfiles/fln.csv");
    AddUse("A.cpr", "Delay", "On");
    EXPECT_FALSE(Create());
    EXPECT_EQ(Results(), "\"A.cpr\",\"Delay\",\"VST    \",\"On\"\r\n");
    EXPECT_EQ(Tln(), "old");
    EXPECT_EQ(Log(), LogLine("CreateResultFiles", 75, "Path/File access error"));
    EXPECT_FALSE(folder.Exists("resultfiles/fln.csv.new"));
}

TEST_F(ResultFilesTest, CancelAtTheSecondQuestionKeepsTheOldFilesFromThereOnAndIsNoFailure) {
    if (!test::HeldFiles::ArePossible())
        GTEST_SKIP() << test::kNoHeldFiles;
    WriteOldFiles();
    AddUse("A.cpr", "Delay", "On");
    window.answers = {MessageAnswer::Cancel};
    {
        const test::HeldFiles held(
            {folder.Path("resultfiles/fln.csv"), folder.Path("resultfiles/tln.csv")});
        EXPECT_TRUE(Create());
    }
    EXPECT_EQ(Results(), "\"A.cpr\",\"Delay\",\"VST    \",\"On\"\r\n");
    EXPECT_EQ(Fln(), "old");
    EXPECT_EQ(Tln(), "old");
    EXPECT_EQ(window.MessageTexts(),
              std::vector{"The file " + folder.Path("resultfiles/fln.csv") +
                          " is being used by another program. Close that program and click Ok to "
                          "continue"});
    EXPECT_EQ(Log(), "");
}

TEST_F(ResultFilesTest, TheQuestionsComeInTheOrderOfTheFiles) {
    if (!test::HeldFiles::ArePossible())
        GTEST_SKIP() << test::kNoHeldFiles;
    WriteOldFiles();
    const std::vector<std::string> paths = {folder.Path("resultfiles/results.csv"),
                                            folder.Path("resultfiles/fln.csv"),
                                            folder.Path("resultfiles/tln.csv")};
    std::vector<std::string> asked;
    {
        test::HeldFiles held(paths);
        window.onMessage = [&](const Message& message) {
            for (const std::string& path : paths)
                if (message.text.find(path) != std::string::npos) {
                    asked.push_back(path);
                    held.Free(path);
                }
        };
        EXPECT_TRUE(Create());
    }
    EXPECT_EQ(asked, paths);
    EXPECT_EQ(Tln(), "");
}

}  // namespace
}  // namespace marlo
