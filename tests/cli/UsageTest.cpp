#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"

namespace marlo {
namespace {

class UsageTest : public test::CliTest {};

TEST_F(UsageTest, HelpAndVersionAreThereForTheProgramAndForEachCommand) {
    const std::vector<std::vector<std::string>> commands = {
        {},          {"plugins"}, {"search"},          {"installed"},      {"report"},
        {"find"},    {"folders"}, {"folders", "list"}, {"folders", "add"}, {"folders", "remove"},
        {"options"}, {"log"}};
    for (auto command : commands) {
        command.emplace_back("--help");
        const auto help = Marlo(command);
        EXPECT_EQ(help.exitCode, 0);
        EXPECT_NE(help.out.find("Usage: marlo-cli"), std::string::npos) << help.out;
        EXPECT_NE(help.out.find("130 cancelled"), std::string::npos) << help.out;
        command.back() = "--version";
        const auto version = Marlo(command);
        EXPECT_EQ(version.exitCode, 0);
        EXPECT_EQ(version.out, "marlo-cli " MARLO_VERSION "\n");
    }
}

TEST_F(UsageTest, WrongUsageExitsWith2AndSaysWhy) {
    const std::vector<std::vector<std::string>> wrong = {{},
                                                         {"plugins"},
                                                         {"frobnicate"},
                                                         {"search", "--nonsense"},
                                                         {"search", "a", "b"},
                                                         {"installed", "x"},
                                                         {"report"},
                                                         {"report", "all"},
                                                         {"report", "used", "--format", "xml"},
                                                         {"find"},
                                                         {"find", "a", "b"},
                                                         {"find", "a", "--in", "songs"},
                                                         {"find", "a", "--match", "like"},
                                                         {"folders", "add"},
                                                         {"folders", "remove"},
                                                         {"folders", "x"},
                                                         {"options", "--ignore-off", "maybe"},
                                                         {"plugins", "a.cpr", "--format", "xml"}};
    for (const auto& arguments : wrong) {
        const auto result = Marlo(arguments);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_NE(result.error, "");
    }
}

TEST_F(UsageTest, AnEscapeSequenceOnTheCommandLineIsNotEchoed) {
    const auto result = Marlo({"search", "--x\x1b[2J"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.error.find('\x1b'), std::string::npos);
}

TEST_F(UsageTest, AMissingApplicationFolderIsSaid) {
    const auto result =
        test::Run({MARLO_CLI, "search", Songs(), "--app-folder", folder.Path("gone")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error,
              "marlo-cli: the application folder " + folder.Path("gone") + " does not exist\n");
}

TEST_F(UsageTest, TheManualPageTellsOfEveryCommandAndOption) {
    const std::string manual = folder.Read(MARLO_SOURCE "/docs/man/marlo-cli.1");
    for (const std::string word : {"plugins",
                                   "search",
                                   "\\-\\-merged",
                                   "\\-\\-format",
                                   "\\-\\-no\\-subfolders",
                                   "\\-\\-progress",
                                   "installed",
                                   "\\-\\-wine\\-prefix",
                                   "report",
                                   "used",
                                   "unused",
                                   "uninstalled",
                                   "html",
                                   "find",
                                   "\\-\\-in",
                                   "\\-\\-match",
                                   "\\-\\-ignore\\-case",
                                   "\\-\\-no\\-ignore\\-case",
                                   "folders",
                                   "list",
                                   "add",
                                   "remove",
                                   "options",
                                   "\\-\\-csv\\-program",
                                   "\\-\\-ignore\\-directx",
                                   "\\-\\-ignore\\-off",
                                   "log",
                                   "\\-\\-app\\-folder",
                                   "\\-\\-help",
                                   "\\-\\-version",
                                   "130"})
        EXPECT_NE(manual.find(word), std::string::npos) << word;
}

}  // namespace
}  // namespace marlo
