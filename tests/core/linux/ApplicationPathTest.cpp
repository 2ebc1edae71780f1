#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "core/Application.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using std::filesystem::perms;

/// Names that the file system tells apart by their case.
class LinuxApplicationPathTest : public test::ApplicationTest {
  protected:
    std::string UsedPlugins() const {
        return ApplicationPath(application, "\\resultfiles\\tln.csv");
    }
};

TEST_F(LinuxApplicationPathTest, TheUsualNameGoesFirstThenTheFirstOneByItsBytes) {
    folder.Write("resultfiles/tLn.csv", "");
    EXPECT_EQ(UsedPlugins(), folder.Path("resultfiles/tLn.csv"));
    folder.Write("resultfiles/tlN.csv", "");
    folder.Write("resultfiles/Tln.csv", "");
    folder.MakeFolder("resultfiles/TLN.csv");
    EXPECT_EQ(UsedPlugins(), folder.Path("resultfiles/Tln.csv"));
    folder.Write("resultfiles/tln.csv", "");
    EXPECT_EQ(UsedPlugins(), folder.Path("resultfiles/tln.csv"));
}

TEST_F(LinuxApplicationPathTest, SoDoesTheUsualFolder) {
    std::filesystem::remove(folder.Path("resultfiles"));
    for (const char* name : {"resultFiles", "ResultFiles"})
        folder.MakeFolder(name);
    EXPECT_EQ(UsedPlugins(), folder.Path("ResultFiles/tln.csv"));
    folder.MakeFolder("resultfiles");
    EXPECT_EQ(UsedPlugins(), folder.Path("resultfiles/tln.csv"));
}

TEST_F(LinuxApplicationPathTest, InAFolderThatMayNotBeListedTheUsualNamesAreFound) {
    folder.Write("resultfiles/TLN.CSV", "");
    folder.Write("resultfiles/fln.csv", "");
    std::filesystem::permissions(folder.Path(), perms{0711});
    std::filesystem::permissions(folder.Path("resultfiles"), perms{0711});
    const test::OrdinaryUser user;
    EXPECT_EQ(UsedPlugins(), folder.Path("resultfiles/tln.csv"));
    EXPECT_EQ(ApplicationPath(application, "\\resultfiles\\fln.csv"),
              folder.Path("resultfiles/fln.csv"));
}

}  // namespace
}  // namespace marlo
