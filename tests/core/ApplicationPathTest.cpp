#include <filesystem>

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
