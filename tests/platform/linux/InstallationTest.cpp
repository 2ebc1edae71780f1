#include <optional>
#include <pwd.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/FileSystem.h"
#include "platform/Installation.h"
#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

namespace marlo::platform {
namespace {

class UserDataFolderTest : public testing::Test {
  protected:
    UserDataFolderTest() {
        test::ClearVariable("XDG_DATA_HOME");
        test::SetVariable("HOME", "/home/someone");
    }
};

TEST_F(UserDataFolderTest, IsWhatTheEnvironmentNames) {
    test::SetVariable("XDG_DATA_HOME", "/data/of some one");
    EXPECT_EQ(UserDataFolder(), "/data/of some one");
}

TEST_F(UserDataFolderTest, IsInTheHomeFolderWhereTheEnvironmentNamesNonePathFromTheRootOn) {
    EXPECT_EQ(UserDataFolder(), "/home/someone/.local/share");
    for (const char* none : {"", "data", "./data", "~/data"}) {
        test::SetVariable("XDG_DATA_HOME", none);
        EXPECT_EQ(UserDataFolder(), "/home/someone/.local/share") << none;
    }
}

TEST_F(UserDataFolderTest, TheHomeFolderIsTheUsersWhereTheEnvironmentNamesNone) {
    const std::string registered = getpwuid(geteuid())->pw_dir;
    for (const char* none : {"", "home"}) {
        test::SetVariable("HOME", none);
        EXPECT_EQ(UserDataFolder(), JoinPath(registered, ".local/share")) << none;
    }
    test::ClearVariable("HOME");
    EXPECT_EQ(UserDataFolder(), JoinPath(registered, ".local/share"));
}

TEST_F(UserDataFolderTest, AUserWhomTheSystemDoesNotKnowHasNone) {
    constexpr uid_t nobodyKnown = 77777;
    if (getuid() != 0)
        GTEST_SKIP() << "only a super-user can become another";
    test::ClearVariable("HOME");
    ASSERT_EQ(seteuid(nobodyKnown), 0);
    const auto folder = UserDataFolder();
    ASSERT_EQ(seteuid(0), 0);
    EXPECT_EQ(folder, std::nullopt);
}

TEST(MakeFolderTest, NobodyElseMayLookIntoAFolderThatIsMade) {
    const test::TempFolder folder;
    std::error_code error;
    const mode_t before = umask(0);
    MakeFolder(folder.Path("new"), error);
    umask(before);
    struct stat status {};
    ASSERT_EQ(stat(folder.Path("new").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0700U);
}

}  // namespace
}  // namespace marlo::platform
