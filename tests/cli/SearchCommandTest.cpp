#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"
#include "tests/support/HeldFiles.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using test::Program;

class SearchCommandTest : public test::CliTest {
  protected:
    /// Projects enough for a search to last while a test does something about it.
    void AddManyProjects() const {
        const std::string bytes = std::string(100, '\0') + tools::PluginBytes({.name = "Delay"});
        const std::string first = folder.Write("songs/0.cpr", bytes);
        for (int i = 1; i < 60000; ++i)
            std::filesystem::create_hard_link(first,
                                              folder.Path("songs/" + std::to_string(i) + ".cpr"));
    }
};

TEST_F(SearchCommandTest, ASearchWritesTheResultFilesAndPrintsASummary) {
    const std::string path = AddProject("a.cpr", {{.name = "Delay"}, {.name = "Delay"}});
    const auto result = Marlo({"search", Songs()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "1 project, 1 plug-in in them, used 2 times.\n");
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(Result("fln.csv"), "\"" + path + "\",\"Delay\",\"VST    \",\"On\"\r\n");
    EXPECT_EQ(Result("tln.csv"), "\"Delay\",\"VST\",\"On\"\r\n");
}

TEST_F(SearchCommandTest, AFolderThatMayNotBeReadIsSaidAndTheOldResultsStay) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    AddProject("a.cpr", {{.name = "Delay"}});
    ASSERT_EQ(Marlo({"search", Songs()}).exitCode, 0);
    const std::string before = Result("results.csv");
    std::filesystem::permissions(folder.Path(), std::filesystem::perms{0755});
    for (const char* const name : {"app", "app/resultfiles"})
        std::filesystem::permissions(folder.Path(name), std::filesystem::perms{0777});
    std::filesystem::permissions(folder.Path("app/settings.ini"), std::filesystem::perms{0666});
    std::filesystem::permissions(Songs(), std::filesystem::perms{0});
    {
        const test::OrdinaryUser user;
        const auto result = Marlo({"search", Songs()});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.error, "marlo-cli: search: " + Songs() +
                                    ": the folder cannot be read (Permission denied)\n");
    }
    std::filesystem::permissions(Songs(), std::filesystem::perms{0755});
    EXPECT_NE(before, "");
    EXPECT_EQ(Result("results.csv"), before);
}

TEST_F(SearchCommandTest, SubfoldersAreSearchedUnlessTheyAreLeftOut) {
    AddProject("sub/a.cpr", {{.name = "Delay"}});
    EXPECT_EQ(Marlo({"search", Songs()}).out, "1 project, 1 plug-in in them, used 1 time.\n");
    EXPECT_EQ(Marlo({"search", Songs(), "--no-subfolders"}).out,
              "0 projects, 0 plug-ins in them, used 0 times.\n");
}

TEST_F(SearchCommandTest, WithoutAFolderTheLastOneIsSearched) {
    AddProject("a.cpr", {{.name = "Delay"}});
    EXPECT_EQ(Marlo({"search", Songs()}).exitCode, 0);
    AddProject("b.cpr", {{.name = "Echo"}});
    EXPECT_EQ(Marlo({"search"}).out, "2 projects, 2 plug-ins in them, used 2 times.\n");
}

TEST_F(SearchCommandTest, WithoutAFolderAndALastOneTheUsageIsWrong) {
    const auto result = Marlo({"search"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.error,
              "marlo-cli: search: no FOLDER is given, and none was searched before\n");
}

TEST_F(SearchCommandTest, AMissingFolderIsSaidAndTheOldResultsStay) {
    folder.Write("app/resultfiles/results.csv", "old");
    const auto result = Marlo({"search", folder.Path("gone\x1b")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error,
              "marlo-cli: search: " + folder.Path("gone") + "\\x1B: no such folder\n");
    EXPECT_EQ(Result("results.csv"), "old");
    EXPECT_EQ(Marlo({"search", folder.Write("file", "")}).exitCode, 1);
}

TEST_F(SearchCommandTest, AnEmptyFolderIsWrongUsageAndNotTheLastOne) {
    EXPECT_EQ(Marlo({"search", Songs()}).exitCode, 0);
    folder.Write("app/resultfiles/results.csv", "old");
    const auto result = Marlo({"search", ""});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.error, "marlo-cli: search: FOLDER is empty\n");
    EXPECT_EQ(Result("results.csv"), "old");
}

TEST_F(SearchCommandTest, SettingsThatCannotBeReadOrWrittenAreSaidAndTheExitCodeIs1) {
    folder.MakeFolder("app/settings.ini");
    const auto withFolder = Marlo({"search", Songs()});
    EXPECT_EQ(withFolder.exitCode, 1);
    EXPECT_NE(withFolder.error.find("WriteSetting: Path/File access error"), std::string::npos);
    const auto withoutFolder = Marlo({"search"});
    EXPECT_EQ(withoutFolder.exitCode, 1);
    EXPECT_EQ(withoutFolder.error, "marlo-cli: getSetting: Path/File access error (error 75)\n");
}

TEST_F(SearchCommandTest, AFolderIsListedUnderTheNameThatItWasGivenBy) {
    AddProject("a.cpr", {{.name = "Delay"}});
    if (!test::MakeLink("songs", folder.Path("link")))
        GTEST_SKIP() << test::kNoLinks;
    EXPECT_EQ(Marlo({"search", folder.Path("link")}).exitCode, 0);
    EXPECT_NE(Result("results.csv").find(folder.Path("link/a.cpr")), std::string::npos);
}

TEST_F(SearchCommandTest, AnIgnoredInterruptStaysIgnored) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    AddManyProjects();
    std::string command = "trap '' INT; exec";
    for (const std::string& word : CommandLine({"search", Songs()}))
        command += " '" + word + "'";
    auto program = Program::Start({"/bin/sh", "-c", command});
    while (!folder.Exists("app/settings.ini") || folder.Read("app/settings.ini").size() < 768)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    program.Interrupt();
    EXPECT_EQ(program.Wait(), 0);
}

TEST_F(SearchCommandTest, ARelativeFolderIsRememberedByItsFullPath) {
    AddProject("a.cpr", {{.name = "Delay"}});
    EXPECT_EQ(
        test::Run({MARLO_CLI, "--app-folder", "app", "search", "./songs/../songs/"}, folder.Path())
            .exitCode,
        0);
    EXPECT_EQ(Setting(1), Songs());
    EXPECT_EQ(Setting(3), "1");
    EXPECT_NE(Result("results.csv").find(folder.Path("songs/a.cpr")), std::string::npos);
}

TEST_F(SearchCommandTest, AProjectThatCannotBeScannedIsSaidAndTheExitCodeIs1) {
    const std::string broken = AddBrokenProject("a.cpr");
    AddProject("b.cpr", {{.name = "Delay"}});
    const auto result = Marlo({"search", Songs()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error, "marlo-cli: GetPlugins4Project " + broken +
                                " : Bad record number (error 63)\n"
                                "marlo-cli: Errors occurred. See " +
                                folder.Path("app") + "\\results\\errorlog.txt for details\n");
    EXPECT_EQ(result.out,
              "2 projects, 1 plug-in in them, used 1 time; could not be read to the end: "
              "1 project.\n");
    EXPECT_EQ(Result("tln.csv"), "\"Delay\",\"VST\",\"On\"\r\n");
}

TEST_F(SearchCommandTest, WithoutAResultFolderTheFailureIsSaid) {
    std::filesystem::remove(folder.Path("app/resultfiles"));
    AddProject("a.cpr", {{.name = "Delay"}});
    const auto result = Marlo({"search", Songs()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.error,
              "marlo-cli: CreateResultFiles: Path not found (error 76)\n"
              "marlo-cli: Errors occurred while creating the result files. See " +
                  folder.Path("app") + "\\resultfiles\\errorlog.txt for details.\n");
    EXPECT_FALSE(folder.Exists("app/resultfiles"));
}

TEST_F(SearchCommandTest, TheResultFolderIsFoundWhateverTheCaseOfItsName) {
    std::filesystem::rename(folder.Path("app/resultfiles"), folder.Path("app/ResultFiles"));
    AddProject("a.cpr", {{.name = "Delay"}});
    EXPECT_EQ(Marlo({"search", Songs()}).exitCode, 0);
    EXPECT_TRUE(folder.Exists("app/ResultFiles/tln.csv"));
    std::filesystem::remove_all(folder.Path("app/ResultFiles"));
    EXPECT_FALSE(folder.Exists("app/resultfiles")) << "there is only the one";
}

TEST_F(SearchCommandTest, AFullDiskLeavesTheOldResultFiles) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    folder.Write("app/resultfiles/results.csv", "old");
    for (int i = 0; i < 200; ++i)
        AddProject(std::to_string(i) + ".cpr", {{.name = "Delay"}});
    // No file may grow beyond 4 KiB; the shell passes the limit on, and the signal is ignored.
    const std::string command = "trap '' XFSZ; ulimit -f 8; " + std::string(MARLO_CLI) +
                                " --app-folder '" + folder.Path("app") + "' search '" + Songs() +
                                "'";
    const auto result = test::Run({"/bin/sh", "-c", command});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(Result("results.csv"), "old");
    EXPECT_FALSE(folder.Exists("app/resultfiles/results.csv.new"));
    EXPECT_NE(Result("errorlog.txt").find("CreateResultFiles Error No.: 61 Description: Disk full"),
              std::string::npos);
}

/// A search whose old results.csv another program holds.
class HeldResultsTest : public SearchCommandTest {
  protected:
    void SetUp() override {
        if (!test::HeldFiles::ArePossible())
            GTEST_SKIP() << test::kNoHeldFiles;
        AddProject("a.cpr", {{.name = "Delay"}});
        folder.Write("app/resultfiles/results.csv", "old");
        std::filesystem::permissions(folder.Path("app"), std::filesystem::perms::all);
        held.emplace(std::vector{ResultsPath()});
    }

    std::string ResultsPath() const { return folder.Path("app/resultfiles/results.csv"); }

    std::string Question() const {
        return "marlo-cli: The file " + ResultsPath() +
               " is being used by another program. Close that program and click Ok to continue";
    }

    std::optional<test::HeldFiles> held;
};

TEST_F(HeldResultsTest, WithoutATerminalTheQuestionIsAnsweredWithCancel) {
    const auto result = Marlo({"search", Songs()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error, Question() + "\n");
    EXPECT_EQ(Result("results.csv"), "old");
    EXPECT_FALSE(folder.Exists("app/resultfiles/fln.csv"));
    EXPECT_FALSE(folder.Exists("app/resultfiles/tln.csv"));
}

TEST_F(HeldResultsTest, OnATerminalTheQuestionIsAskedUntilTheFileIsFree) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    auto program = Program::StartInTerminal(CommandLine({"search", Songs()}));
    program.ReadUntil("[o]k or [c]ancel? ");
    held->Free(ResultsPath());
    program.Type("ok\n");
    const std::string seen = program.ReadAll();
    EXPECT_EQ(program.Wait(), 0) << seen;
    EXPECT_NE(seen.find(Question()), std::string::npos) << seen;
    EXPECT_NE(Result("results.csv").find("Delay"), std::string::npos);
}

TEST_F(HeldResultsTest, AnythingButOkCancelsTheQuestion) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    auto program = Program::StartInTerminal(CommandLine({"search", Songs()}));
    program.ReadUntil("[o]k or [c]ancel? ");
    program.Type("\n");
    program.ReadAll();
    EXPECT_EQ(program.Wait(), 1);
    EXPECT_EQ(Result("results.csv"), "old");
}

TEST_F(HeldResultsTest, TheInterruptKeyCancelsTheQuestion) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    auto program = Program::StartInTerminal(CommandLine({"search", Songs()}));
    program.ReadUntil("[o]k or [c]ancel? ");
    program.Type("\x03");
    program.ReadAll();
    EXPECT_EQ(program.Wait(), 130);
    EXPECT_EQ(Result("results.csv"), "old");
}

TEST_F(SearchCommandTest, WithoutATerminalThereIsNoProgressUnlessAskedFor) {
    AddProject("a.cpr", {{.name = "Delay"}});
    const std::string b = AddProject("b.cpr", {{.name = "Delay"}});
    EXPECT_EQ(Marlo({"search", Songs()}).error, "");
    const std::string a = folder.Path("songs/a.cpr");
    EXPECT_EQ(Marlo({"search", Songs(), "--progress"}).error,
              "(1) Compiling list of SX Projects...\n"
              "(2) Finding Plugins (50%) ... " +
                  a +
                  "\n"
                  "(2) Finding Plugins (100%) ... " +
                  b +
                  "\n"
                  "(3) Writing to file...\n");
}

TEST_F(SearchCommandTest, OnATerminalTheProgressIsOneLineThatIsClearedAtTheEnd) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    AddProject("a.cpr", {{.name = "Delay"}});
    auto program = Program::StartInTerminal(CommandLine({"search", Songs()}));
    const std::string seen = program.ReadAll();
    EXPECT_EQ(program.Wait(), 0);
    EXPECT_NE(seen.find("\r\x1b[K(1) Compiling list of SX Projects..."), std::string::npos) << seen;
    // Only the summary ends a line.
    EXPECT_EQ(seen.substr(seen.rfind("\r\x1b[K")),
              "\r\x1b[K1 project, 1 plug-in in them, used 1 time.\r\n");
    EXPECT_EQ(std::count(seen.begin(), seen.end(), '\n'), 1);
}

TEST_F(SearchCommandTest, TheInterruptKeyCancelsAndLeavesTheOldResultFiles) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    AddManyProjects();
    folder.Write("app/resultfiles/results.csv", "old");
    auto program = Program::StartInTerminal(CommandLine({"search", Songs()}));
    program.ReadUntil("Compiling");
    program.Type("\x03");
    const std::string seen = program.ReadAll();
    EXPECT_EQ(program.Wait(), 130) << seen;
    EXPECT_NE(seen.find("marlo-cli: Cancelled\r\n"), std::string::npos) << seen;
    EXPECT_EQ(Result("results.csv"), "old");
    EXPECT_FALSE(folder.Exists("app/resultfiles/fln.csv"));
}

TEST_F(SearchCommandTest, AnInterruptSignalWithoutATerminalCancelsToo) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    AddManyProjects();
    auto program = Program::Start(CommandLine({"search", Songs()}));
    // The folder is remembered once the run has begun.
    while (!folder.Exists("app/settings.ini") || folder.Read("app/settings.ini").size() < 768)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    program.Interrupt();
    EXPECT_EQ(program.Wait(), 130);
    EXPECT_FALSE(folder.Exists("app/resultfiles/results.csv"));
}

}  // namespace
}  // namespace marlo
