#include <regex>
#include <set>
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
        {"options"}, {"log"},     {"completion"}};
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
                                                         {"plugins", "a.cpr", "--format", "xml"},
                                                         {"completion"},
                                                         {"completion", "tcsh"}};
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

/// The options that a text names, as "--option".
std::set<std::string> OptionsIn(const std::string& text) {
    static const std::regex option("--[a-z]+(-[a-z]+)*");
    std::set<std::string> options;
    for (std::sregex_iterator at(text.begin(), text.end(), option), end; at != end; ++at)
        options.insert(at->str());
    return options;
}

/// A part of a manual page, from its heading to the next one; empty when there is none.
std::string PartOf(const std::string& manual, const std::string& heading) {
    const std::size_t start = manual.find("\n" + heading);
    if (start == std::string::npos)
        return {};
    const std::size_t end = manual.find("\n.S", start + 1);
    return std::regex_replace(manual.substr(start, end - start), std::regex(R"(\\-)"), "-");
}

TEST_F(UsageTest, TheManualPageTellsOfEveryCommandWithItsOptions) {
    const std::string manual = folder.Read(MARLO_SOURCE "/docs/man/marlo-cli.1");
    const std::set<std::string> common = OptionsIn(PartOf(manual, ".SH OPTIONS"));
    EXPECT_EQ(common, (std::set<std::string>{"--app-folder", "--help", "--version"}));
    for (const std::string command :
         {"plugins", "search", "installed", "report", "find", "folders", "options", "log"}) {
        const std::string part = PartOf(manual, ".SS " + command);
        EXPECT_NE(part, "") << command;
        const std::set<std::string> told = OptionsIn(part);
        const std::set<std::string> offered = OptionsIn(Marlo({command, "--help"}).out);
        EXPECT_TRUE(offered.contains("--help")) << command;
        for (const std::string& option : offered)
            EXPECT_TRUE(told.contains(option) || common.contains(option)) << command << option;
    }
}

TEST_F(UsageTest, TheManualPageTellsOfTheReportsTheFoldersAndTheExitCodes) {
    const std::string manual = folder.Read(MARLO_SOURCE "/docs/man/marlo-cli.1");
    EXPECT_NE(manual.find(".SS report used | unused | installed | uninstalled\n"),
              std::string::npos);
    for (const std::string kind : {"used", "unused", "installed", "uninstalled"})
        EXPECT_NE(PartOf(manual, ".SS report").find(".TP\n.B " + kind + "\n"), std::string::npos);
    for (const std::string format : {"table", "csv", "json", "html"})
        EXPECT_NE(PartOf(manual, ".SS report").find("\n.B " + format + "\n"), std::string::npos);
    EXPECT_NE(manual.find(".SS folders [list | add DIR | remove DIR]\n"), std::string::npos);
    for (const std::string code : {"0", "1", "2", "130"})
        EXPECT_NE(PartOf(manual, ".SH EXIT STATUS").find("\n.B " + code + "\n"), std::string::npos)
            << code;
}

}  // namespace
}  // namespace marlo
