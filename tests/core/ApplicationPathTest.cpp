#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "core/Application.h"
#include "tests/support/ApplicationTest.h"

namespace marlo {
namespace {

class ApplicationPathTest : public test::ApplicationTest {};

TEST_F(ApplicationPathTest, AFileLiesUnderTheApplicationFolder) {
    EXPECT_EQ(ApplicationPath(application, "\\settings.ini"), folder.Path("settings.ini"));
}

TEST_F(ApplicationPathTest, EverySpellingMeansTheOneResultFolder) {
    for (const char* spelling :
         {"\\resultfiles\\a.csv", "\\Resultfiles\\a.csv", "\\ResultFiles\\a.csv"})
        EXPECT_EQ(ApplicationPath(application, spelling), folder.Path("resultfiles/a.csv"));
}

TEST_F(ApplicationPathTest, TheResultFolderIsFoundWhateverTheCaseOfItsName) {
    std::filesystem::rename(folder.Path("resultfiles"), folder.Path("ResultFILES"));
    EXPECT_TRUE(std::filesystem::equivalent(ApplicationPath(application, "\\resultfiles\\a.csv"),
                                            folder.Write("ResultFILES/a.csv", "")));
}

TEST_F(ApplicationPathTest, AFileIsFoundWhateverTheCaseOfItsNameAndOfItsFolders) {
    std::filesystem::remove(folder.Path("resultfiles"));
    for (const auto& [relativePath, name] : {std::pair("\\settings.ini", "Settings.INI"),
                                             {"\\resultfiles\\tln.csv", "RESULTFILES/TLN.CSV"},
                                             {"\\icons\\donate_b&w.gif", "Icons/Donate_B&W.gif"}}) {
        const std::string path = folder.Write(name, "");
        EXPECT_TRUE(std::filesystem::equivalent(ApplicationPath(application, relativePath), path))
            << name;
    }
}

TEST_F(ApplicationPathTest, AFolderOfThatNameIsNotTheFile) {
    folder.MakeFolder("resultfiles/TLN.CSV");
    EXPECT_EQ(ApplicationPath(application, "\\resultfiles\\tln.csv"),
              folder.Path("resultfiles/tln.csv"));
}

TEST_F(ApplicationPathTest, AFileOfThatNameIsNotTheResultFolder) {
    std::filesystem::remove(folder.Path("resultfiles"));
    folder.Write("RESULTFILES", "");
    EXPECT_EQ(ApplicationPath(application, "\\resultfiles\\a.csv"),
              folder.Path("resultfiles/a.csv"));
}

TEST_F(ApplicationPathTest, AMissingResultFolderGoesByItsUsualNameAndIsNotMade) {
    std::filesystem::remove(folder.Path("resultfiles"));
    EXPECT_EQ(ApplicationPath(application, "\\ResultFiles\\a.csv"),
              folder.Path("resultfiles/a.csv"));
    EXPECT_FALSE(folder.Exists("resultfiles"));
}

TEST_F(ApplicationPathTest, AnApplicationInTheRootFolderGetsOneSeparator) {
    const Application root{"/", clock, desktop, registry, {}};
    EXPECT_EQ(ApplicationPath(root, "\\settings.ini"), "/settings.ini");
}

}  // namespace
}  // namespace marlo
