#include "tests/cli/ReportCommandTest.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/System.h"

namespace marlo {
namespace {

using test::Program;
using test::ReportCommandTest;
using Json = nlohmann::ordered_json;

TEST_F(ReportCommandTest, TheUsedPluginsAreSortedAndMarkedWhereTheyAreNotInstalled) {
    const auto result = Marlo({"report", "used"});
    EXPECT_EQ(result.out,
              "  Used Plugins  Type     Path             Status\n"
              "  DX Echo       DirectX                   On\n"
              "  Réverb        VST      /vst/Réverb.dll  On\n"
              "* Tape Delay    VST      !Not Installed!  Off\n"
              "* not installed\n");
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.exitCode, 0);
}

TEST_F(ReportCommandTest, AnEndlessNameDoesNotMoveTheOtherRows) {
    const std::string endless(10'000, 'z');
    const std::string aligned(200, 'y');
    const std::string blanks = "  ";
    WriteResult("tln.csv", "\"" + endless + "\",\"VST\",\"On\"\r\n\"" + aligned +
                               "\",\"VST\",\"On\"\r\n\"DX Echo\",\"DirectX\",\"On\"\r\n");
    const std::string type = "VST      !Not Installed!  On\n";
    EXPECT_EQ(Marlo({"report", "used"}).out,
              "  Used Plugins" + std::string(188, ' ') + "  Type     Path             Status\n" +
                  "  DX Echo" + std::string(193, ' ') + "  DirectX                   On\n" + "* " +
                  aligned + blanks + type + "* " + endless + blanks + type + "* not installed\n");
}

TEST_F(ReportCommandTest, TheUnusedPluginsAreListed) {
    EXPECT_EQ(Marlo({"report", "unused"}).out,
              "Unused Plugins  Type  Path\n"
              "Unused          VST   /vst/Unused.dll\n");
}

TEST_F(ReportCommandTest, TheInstalledPluginsAreListed) {
    EXPECT_EQ(Marlo({"report", "installed"}).out,
              "Installed Plugins  Type     Path\n"
              "DX Echo            DirectX\n"
              "Réverb             VST      /vst/Réverb.dll\n"
              "Unused             VST      /vst/Unused.dll\n");
}

TEST_F(ReportCommandTest, TheUninstalledPluginsAreListed) {
    EXPECT_EQ(Marlo({"report", "uninstalled"}).out,
              "Uninstalled Plugins  Type  Status\n"
              "Tape Delay           VST   Off\n");
}

TEST_F(ReportCommandTest, TheOptionsLeavePluginsAndColumnsOut) {
    Marlo({"options", "--ignore-directx", "on", "--ignore-off", "on"});
    EXPECT_EQ(Marlo({"report", "installed"}).out,
              "Installed Plugins  Path\n"
              "Réverb             /vst/Réverb.dll\n"
              "Unused             /vst/Unused.dll\n");
    EXPECT_EQ(Marlo({"report", "uninstalled"}).out, "Uninstalled Plugins\nTape Delay\n");
}

TEST_F(ReportCommandTest, CsvHasFieldsAsTheyAreAndAColumnForTheGreyedRows) {
    EXPECT_EQ(Marlo({"report", "used", "--format", "csv"}).out,
              "\"Used Plugins\",\"Type\",\"Path\",\"Status\",\"Greyed\"\r\n"
              "\"DX Echo\",\"DirectX\",\"\",\"On\",\"no\"\r\n"
              "\"R\xE9verb\",\"VST\",\"/vst/R\xC3\xA9verb.dll\",\"On\",\"no\"\r\n"
              "\"Tape Delay\",\"VST\",\"!Not Installed!\",\"Off\",\"yes\"\r\n");
}

TEST_F(ReportCommandTest, JsonIsUtf8WithTheSameNamesInEveryReport) {
    const Json used = Json::parse(Marlo({"report", "used", "--format", "json"}).out);
    EXPECT_EQ(used.size(), 3U);
    EXPECT_EQ(used[1], (Json{{"plugin", "Réverb"},
                             {"type", "VST"},
                             {"path", "/vst/Réverb.dll"},
                             {"state", "On"},
                             {"greyed", false}}));
    EXPECT_EQ(used[2]["greyed"], true);
    const Json uninstalled = Json::parse(Marlo({"report", "uninstalled", "--format", "json"}).out);
    EXPECT_EQ(
        uninstalled,
        (Json::array(
            {{{"plugin", "Tape Delay"}, {"type", "VST"}, {"state", "Off"}, {"greyed", false}}})));
}

TEST_F(ReportCommandTest, HtmlIsAPageWithTheReportsNameAndRows) {
    const auto result = Marlo({"report", "used", "--format", "html"});
    EXPECT_TRUE(result.out.starts_with("<!DOCTYPE html>"));
    EXPECT_NE(result.out.find("<h1>Used Plugins</h1>"), std::string::npos);
    EXPECT_NE(result.out.find("<td>Réverb</td>"), std::string::npos);
    EXPECT_NE(result.out.find("<tr class=\"greyed\"><td>Tape Delay</td>"), std::string::npos);
    EXPECT_EQ(result.exitCode, 0);
}

TEST_F(ReportCommandTest, ThePlaceholderIsForPeopleOnly) {
    WriteResult("tln.csv", "");
    EXPECT_NE(Marlo({"report", "used"}).out.find("No plugins found"), std::string::npos);
    EXPECT_EQ(Marlo({"report", "used", "--format", "json"}).out, "[]\n");
    EXPECT_EQ(Marlo({"report", "used", "--format", "csv"}).out,
              "\"Used Plugins\",\"Type\",\"Path\",\"Status\",\"Greyed\"\r\n");
}

TEST_F(ReportCommandTest, GreyedRowsAreDimmedOnAColourTerminalAndMarkedOnAnother) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    const std::string dimmed = "\x1b[2mTape Delay    VST      !Not Installed!  Off\x1b[0m";
    const std::string colour = InTerminal({"report", "used"}, "xterm");
    EXPECT_NE(colour.find(dimmed), std::string::npos) << colour;
    EXPECT_EQ(colour.find("* "), std::string::npos);
    const std::string plain = InTerminal({"report", "used"}, "dumb");
    EXPECT_EQ(plain.find('\x1b'), std::string::npos);
    EXPECT_NE(plain.find("* Tape Delay"), std::string::npos);
}

TEST_F(ReportCommandTest, NoColoursAreShownToAUserWhoWantsNone) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    test::SetVariable("TERM", "xterm");
    test::SetVariable("NO_COLOR", "1");
    auto program = Program::StartInTerminal(CommandLine({"report", "used"}));
    EXPECT_EQ(program.ReadAll().find('\x1b'), std::string::npos);
    EXPECT_EQ(program.Wait(), 0);
}

TEST_F(ReportCommandTest, CsvOnATerminalCannotActOnIt) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    WriteResult("tln.csv", "\"\x1b[2J\",\"VST\",\"On\"\r\n");
    const std::string shown = InTerminal({"report", "used", "--format", "csv"}, "xterm");
    EXPECT_EQ(shown.find('\x1b'), std::string::npos);
    EXPECT_NE(shown.find("\\x1B[2J"), std::string::npos);
}

TEST_F(ReportCommandTest, APageOnATerminalCannotActOnIt) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    const std::string rightToLeft{'\xE2', '\x80', '\xAE'};
    WriteResult("tln.csv",
                "\"\x1b[2J" + rightToLeft + "\",\"VST\",\"On\"\r\n\"Echo\",\"VST\",\"On\"\r\n");
    const std::vector<std::string> report = {"report", "used", "--format", "html"};
    const std::string shown = InTerminal(report, "xterm");
    EXPECT_EQ(shown.find('\x1b'), std::string::npos);
    EXPECT_EQ(shown.find(rightToLeft), std::string::npos);
    EXPECT_NE(shown.find("<td>Echo</td>"), std::string::npos);
    EXPECT_NE(Marlo(report).out.find(rightToLeft), std::string::npos)
        << "a program gets it as it is";
}

TEST_F(ReportCommandTest, AFailureIsSaidAndTheRowsFoundBeforeItArePrinted) {
    std::filesystem::remove(folder.Path("app/resultfiles/tln.csv"));
    const auto result = Marlo({"report", "uninstalled"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "Uninstalled Plugins  Type  Status\n");
    EXPECT_EQ(result.error,
              "marlo-cli: ShowUnusedPlugins: File not found (error 53)\n"
              "marlo-cli: An unexpected error occurred.\n");
    EXPECT_NE(Result("errorlog.txt").find("Procedure: ShowUnusedPlugins"), std::string::npos);
}

using FindCommandTest = ReportCommandTest;

TEST_F(FindCommandTest, ProjectsAreFoundByTheNameOfAPlugin) {
    const auto result = Marlo({"find", "Tape Delay"});
    const std::string gap(project.size() - std::string("Project").size(), ' ');
    EXPECT_EQ(result.out, "  Project" + gap +
                              "  Last Modified          Plugin      Type  Status\n* " + project +
                              "  10/28/2006 3:45:12 PM  Tape Delay  VST   Off\n"
                              "* not installed\n");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.error, "");
}

TEST_F(FindCommandTest, PluginsAreFoundByTheNameOfAProject) {
    const Json found = Json::parse(
        Marlo({"find", "a.cpr", "--in", "projects", "--match", "ends", "--format", "json"}).out);
    EXPECT_EQ(found.size(), 2U);
    EXPECT_EQ(found[1], (Json{{"project", project},
                              {"modified", "10/28/2006 3:45:12 PM"},
                              {"plugin", "Réverb"},
                              {"type", "VST"},
                              {"state", "On"},
                              {"greyed", false}}));
}

TEST_F(FindCommandTest, TheMatchIsTheOneThatIsNamed) {
    const auto rows = [&](const std::string& text, const std::string& match) {
        return Json::parse(Marlo({"find", text, "--match", match, "--format", "json"}).out).size();
    };
    EXPECT_EQ(rows("Tape", "exact"), 0U);
    EXPECT_EQ(rows("Tape", "starts"), 1U);
    EXPECT_EQ(rows("Tape", "ends"), 0U);
    EXPECT_EQ(rows("Delay", "ends"), 1U);
    EXPECT_EQ(rows("e", "contains"), 2U);
    EXPECT_EQ(rows("", "contains"), 2U);
    EXPECT_EQ(rows("réverb", "exact"), 0U);
}

TEST_F(FindCommandTest, WithoutOptionsTheChoicesOfTheSettingsCount) {
    const auto rows = [&](std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "find");
        arguments.insert(arguments.end(), {"--format", "json"});
        return Json::parse(Marlo(arguments).out).size();
    };
    EXPECT_EQ(rows({"verb"}), 0U);
    EXPECT_EQ(rows({"Réverb"}), 1U);
    WriteSetting(9, "3");
    WriteSetting(10, "1");
    EXPECT_EQ(rows({"VERB"}), 1U);
    EXPECT_EQ(rows({"VERB", "--no-ignore-case"}), 0U);
    EXPECT_EQ(rows({"VERB", "--match", "exact"}), 0U);
    WriteSetting(9, "77");
    EXPECT_EQ(rows({"verb"}), 0U) << "an unknown choice is the first one";
    EXPECT_EQ(rows({"réverb", "--ignore-case"}), 1U);
}

TEST_F(FindCommandTest, TheTextIsTakenAsItIs) {
    WriteResult("fln.csv", "\"" + project + "\",\"[a]\",\"VST\",\"On\"\r\n\"" + project +
                               "\",\"-x\",\"VST\",\"On\"\r\n");
    EXPECT_EQ(Json::parse(Marlo({"find", "[a]", "--format", "json"}).out).size(), 1U);
    EXPECT_EQ(Json::parse(Marlo({"find", "--format", "json", "--", "-x"}).out).size(), 1U);
}

TEST_F(FindCommandTest, NothingFoundIsSaid) {
    const auto result = Marlo({"find", "Nothing"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.out.find("No projects found"), std::string::npos);
}

TEST_F(FindCommandTest, AMissingProjectEndsTheSearchAndWhatWasFoundIsPrinted) {
    WriteResult("fln.csv", "\"" + project + "\",\"A\",\"VST\",\"On\"\r\n\"" + project +
                               ".gone\",\"A\",\"VST\",\"On\"\r\n");
    const auto result = Marlo({"find", "A"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error,
              "marlo-cli: SearchResultFiles: File not found (error 53)\n"
              "marlo-cli: An unexpected error occurred.\n");
    EXPECT_NE(result.out.find("* " + project + " "), std::string::npos);
}

TEST_F(FindCommandTest, ThePageIsNamedAfterTheSearch) {
    EXPECT_NE(Marlo({"find", "<x>", "--format", "html"})
                  .out.find("<h1>Search for Projects by Plugin: &#60;x&#62;</h1>"),
              std::string::npos);
}

}  // namespace
}  // namespace marlo
