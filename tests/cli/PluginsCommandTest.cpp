#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/cli/CliTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using test::Program;

class PluginsCommandTest : public test::CliTest {
  protected:
    /// A project with a plug-in that is used twice, and an odd name. @return its path.
    std::string AddUsual() const {
        return AddProject("a.cpr", {{.name = "Delay", .state = 0},
                                    {.name = "Delay", .state = 1},
                                    {.name = "R\xE9verb, \"big\"", .isVst = false}});
    }
};

TEST_F(PluginsCommandTest, ATableIsTheUsualOutput) {
    const std::string path = AddUsual();
    const auto result = Marlo({"plugins", path});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.out,
              "Plug-in        Type     State  Project\n"
              "Delay          VST      Off    " +
                  path +
                  "\n"
                  "Delay          VST      On     " +
                  path +
                  "\n"
                  "R\xC3\xA9verb, \"big\"  DirectX  On     " +
                  path + "\n");
}

TEST_F(PluginsCommandTest, MergedPrintsALineForEachPlugin) {
    const std::string path = AddUsual();
    EXPECT_EQ(Marlo({"plugins", "--merged", path}).out,
              "Plug-in        Type     State  Project\n"
              "Delay          VST      On     " +
                  path +
                  "\n"
                  "R\xC3\xA9verb, \"big\"  DirectX  On     " +
                  path + "\n");
}

TEST_F(PluginsCommandTest, CsvIsByteForByteWhatASearchWritesToTheResultFiles) {
    const std::string a = AddUsual();
    const std::string b = AddProject("b.cpr", {{.name = "Delay"}, {.name = "x\ny\x1b[2J"}});
    EXPECT_EQ(Marlo({"search", Songs()}).exitCode, 0);
    EXPECT_EQ(Marlo({"plugins", a, b, "--format", "csv"}).out, Result("results.csv"));
    EXPECT_EQ(Marlo({"plugins", a, b, "--format", "csv", "--merged"}).out, Result("fln.csv"));
    EXPECT_NE(Result("results.csv").find("R\xE9verb"), std::string::npos);
}

TEST_F(PluginsCommandTest, JsonHasDecodedTexts) {
    const std::string path = AddUsual();
    const auto uses = nlohmann::json::parse(Marlo({"plugins", path, "--format", "json"}).out);
    ASSERT_EQ(uses.size(), 3U);
    EXPECT_EQ(uses[0],
              (nlohmann::json{
                  {"project", path}, {"plugin", "Delay"}, {"type", "VST"}, {"state", "Off"}}));
    EXPECT_EQ(uses[2]["plugin"], "R\xC3\xA9verb, \"big\"");
    EXPECT_EQ(uses[2]["type"], "DirectX");
}

TEST_F(PluginsCommandTest, JsonWithoutAPluginIsAnEmptyList) {
    EXPECT_EQ(Marlo({"plugins", AddProject("a.cpr", {}), "--format", "json"}).out, "[]\n");
}

TEST_F(PluginsCommandTest, LinesOfJsonAreTheObjectsOfTheListALineEach) {
    const std::string a = AddUsual();
    const std::string b = AddProject("b.cpr", {{.name = "x\ny\x1b[2J"}, {.name = "Delay"}});
    for (const std::vector<std::string>& options :
         std::vector<std::vector<std::string>>{{a, b, a}, {"--merged", a, b, a}}) {
        const auto print = [&](const std::string& format) {
            std::vector<std::string> arguments = {"plugins", "--format", format};
            arguments.insert(arguments.end(), options.begin(), options.end());
            return Marlo(arguments).out;
        };
        auto expected = nlohmann::ordered_json::parse(print("json"));
        auto objects = nlohmann::ordered_json::array();
        std::istringstream lines(print("jsonl"));
        for (std::string line; std::getline(lines, line);)
            objects.push_back(nlohmann::ordered_json::parse(line));
        EXPECT_EQ(objects, expected);
        EXPECT_EQ(objects.size(), options.size() == 3 ? 8U : 4U);
    }
    EXPECT_EQ(Marlo({"plugins", AddProject("none.cpr", {}), "--format", "jsonl"}).out, "");
}

TEST_F(PluginsCommandTest, LinesOfJsonGoOnBehindAFileThatCannotBeScanned) {
    const std::string good = AddProject("a.cpr", {{.name = "Delay"}});
    const auto result = Marlo({"plugins", AddBrokenProject("0.cpr"), good, folder.Path("gone.cpr"),
                               good, "--format", "jsonl"});
    EXPECT_EQ(result.exitCode, 1);
    const std::string line = "{\"project\": " + nlohmann::json(good).dump() +
                             ", \"plugin\": \"Delay\", \"type\": \"VST\", \"state\": \"On\"}\n";
    EXPECT_EQ(result.out, line + line);
    EXPECT_NE(result.error.find("File not found"), std::string::npos);
}

TEST_F(PluginsCommandTest, AFileThatCannotBeScannedIsSaidAndTheOthersArePrinted) {
    const std::string good = AddProject("a.cpr", {{.name = "Delay"}});
    const std::string gone = folder.Path("songs/gone.cpr");
    const auto result = Marlo({"plugins", gone, good, "--format", "csv"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "\"" + good + "\",\"Delay\",\"VST    \",\"On\"\r\n");
    EXPECT_EQ(result.error,
              "marlo-cli: GetPlugins4Project " + gone + " : File not found (error 53)\n");
}

TEST_F(PluginsCommandTest, OfALongPathThatIsSaidTheBeginningIsShownInWholeCharacters) {
    const std::string procedure = "GetPlugins4Project ";
    // The 300th byte is the first one of a character.
    const std::size_t others = (procedure + folder.Path("x")).size() - 1;
    const std::string path = folder.Path(std::string(299 - others, 'x'));
    const std::string gone = path + "\u00E9" + std::string(100, 'y') + ".cpr";
    const std::string error = Marlo({"plugins", gone}).error;
    EXPECT_TRUE(error.starts_with("marlo-cli: " + procedure + path + " ...: ")) << error;
}

TEST_F(PluginsCommandTest, ARelativePathIsListedAsASearchWouldListIt) {
    const std::string path = AddProject("a.cpr", {{.name = "Delay"}});
    EXPECT_EQ(test::Run({MARLO_CLI, "plugins", "./a.cpr", "--format", "csv"}, Songs()).out,
              "\"" + path + "\",\"Delay\",\"VST    \",\"On\"\r\n");
}

TEST_F(PluginsCommandTest, AFileNamedInSquareBracketsIsOneFile) {
    AddProject("[a,b]", {{.name = "Delay"}});
    EXPECT_NE(
        test::Run({MARLO_CLI, "plugins", "[a,b]", "--format", "csv"}, Songs()).out.find("[a,b]"),
        std::string::npos);
}

TEST_F(PluginsCommandTest, NoResultFileIsTouched) {
    Marlo({"plugins", AddUsual()});
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path("app/resultfiles")));
    EXPECT_FALSE(folder.Exists("app/settings.ini"));
}

TEST_F(PluginsCommandTest, TheSameFileTwiceIsListedTwiceAndMergedOnce) {
    const std::string path = AddProject("a.cpr", {{.name = "Delay"}});
    const std::string line = "\"" + path + "\",\"Delay\",\"VST    \",\"On\"\r\n";
    EXPECT_EQ(Marlo({"plugins", path, path, "--format", "csv"}).out, line + line);
    EXPECT_EQ(Marlo({"plugins", path, path, "--format", "csv", "--merged"}).out, line);
}

TEST_F(PluginsCommandTest, NothingFromAFileReachesATerminalRaw) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    const std::string path =
        AddProject("a\x1b[31m.cpr", {{.name = "evil\x1b[2J\x1b]0;t\x07\n\xC2\x9B\x7F"}});
    for (const std::string format : {"table", "csv", "json", "jsonl"}) {
        auto program = Program::StartInTerminal(CommandLine({"plugins", path, "--format", format}));
        const std::string seen = program.ReadAll();
        EXPECT_EQ(program.Wait(), 0) << format;
        EXPECT_NE(seen.find("evil"), std::string::npos) << format;
        for (const char* raw : {"\x1b", "\x07", "\x7F", "\xC2\x9B"})
            EXPECT_EQ(seen.find(raw), std::string::npos) << format;
    }
}

TEST_F(PluginsCommandTest, OutputThatCannotBeWrittenIsAFailure) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    const std::string command = std::string(MARLO_CLI) + " plugins '" + AddUsual() + "' >/dev/full";
    const auto result = test::Run({"/bin/sh", "-c", command});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error, "marlo-cli: the output cannot be written\n");
}

TEST_F(PluginsCommandTest, LinesOfJsonThatCannotBeWrittenAreAFailureAndNoMoreIsRead) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    const std::string command = std::string(MARLO_CLI) + " plugins --format jsonl '" + AddUsual() +
                                "' '" + folder.Path("gone.cpr") + "' >/dev/full";
    const auto result = test::Run({"/bin/sh", "-c", command});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error, "marlo-cli: the output cannot be written\n");
}

}  // namespace
}  // namespace marlo
