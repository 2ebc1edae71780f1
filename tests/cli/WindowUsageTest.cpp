// What the window's program does without a window.

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

class WindowUsageTest : public test::CliTest {
  protected:
    WindowUsageTest() {
        test::ClearVariable("DISPLAY");
        test::ClearVariable("WAYLAND_DISPLAY");
    }
};

TEST_F(WindowUsageTest, HelpAndVersionNeedNoDisplay) {
    const auto help = MarloWindow({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    for (const std::string option : {"--app-folder DIR", "--version"})
        EXPECT_NE(help.out.find(option), std::string::npos) << help.out;
    const auto version = MarloWindow({"--version"});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.out, "marlo " MARLO_VERSION "\n");
}

TEST_F(WindowUsageTest, WrongUsageExitsWith2) {
    for (const std::string argument : {"--nonsense", "a", "--app-folder"}) {
        const auto result = MarloWindow({argument});
        EXPECT_EQ(result.exitCode, 2) << argument;
        EXPECT_NE(result.error, "") << argument;
    }
}

TEST_F(WindowUsageTest, AMissingApplicationFolderIsSaid) {
    const auto result = MarloWindow({"--app-folder", folder.Path("gone")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error,
              "marlo: the application folder " + folder.Path("gone") + " does not exist\n");
}

TEST_F(WindowUsageTest, AnEscapeSequenceOnTheCommandLineIsNotEchoed) {
    const auto wrong = MarloWindow({"--x\x1b[2J"});
    EXPECT_EQ(wrong.exitCode, 2);
    EXPECT_EQ(wrong.error.find('\x1b'), std::string::npos);
    EXPECT_NE(wrong.error.find("--x\\x1B[2J"), std::string::npos) << wrong.error;
    const auto missing = MarloWindow({"--app-folder", folder.Path("gone") + "\x1b[2J"});
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_EQ(missing.error,
              "marlo: the application folder " + folder.Path("gone") + "\\x1B[2J does not exist\n");
}

TEST_F(WindowUsageTest, TheManualPageTellsOfEveryOption) {
    const std::string manual = folder.Read(MARLO_SOURCE "/docs/man/marlo.1");
    for (const std::string word :
         {"\\-\\-app\\-folder", "\\-\\-wine\\-prefix", "\\-\\-help", "\\-\\-version"})
        EXPECT_NE(manual.find(word), std::string::npos) << word;
}

}  // namespace
}  // namespace marlo
