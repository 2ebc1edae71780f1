// The paths alone of a report or a search.

#include <string>

#include <gtest/gtest.h>

#include "tests/cli/ReportCommandTest.h"

namespace marlo {
namespace {

class PathsTest : public test::ReportCommandTest {
  protected:
    /// A line of fln.csv.
    static std::string Use(const std::string& path, const std::string& plugin,
                           const std::string& type = "VST    ") {
        return "\"" + path + "\",\"" + plugin + "\",\"" + type + "\",\"On\"\r\n";
    }
};

TEST_F(PathsTest, AReportHasThePathsOfWhatIsInstalled) {
    EXPECT_EQ(Marlo({"report", "used", "--format", "paths"}).out, "/vst/R\u00E9verb.dll\n");
    EXPECT_EQ(Marlo({"report", "unused", "--format", "paths"}).out, "/vst/Unused.dll\n");
    EXPECT_EQ(Marlo({"report", "installed", "--format", "paths"}).out,
              "/vst/R\u00E9verb.dll\n/vst/Unused.dll\n");
}

TEST_F(PathsTest, APathIsPrintedOnceWhereItsFirstRowIs) {
    WriteResult("installedplugins.csv",
                "\"VST\",\"B\",\"/vst/both.dll\"\r\n\"VST\",\"C\",\"/vst/c.dll\"\r\n"
                "\"VST\",\"A\",\"/vst/a.dll\"\r\n\"VST\",\"D\",\"/vst/both.dll\"\r\n");
    EXPECT_EQ(Marlo({"report", "installed", "--format", "paths"}).out,
              "/vst/a.dll\n/vst/both.dll\n/vst/c.dll\n");
}

TEST_F(PathsTest, ASearchHasTheProjectsInTheOrderOfTheFile) {
    const std::string later = folder.Write("songs/0.cpr", "");
    WriteResult("fln.csv", Use(project, "Tape Delay") + Use(project, "Tape") +
                               Use(later, "Tape Delay") + Use(later, "Echo"));
    EXPECT_EQ(Marlo({"find", "Tape", "--match", "starts", "--format", "paths"}).out,
              project + "\n" + later + "\n");
    EXPECT_EQ(
        Marlo({"find", "0.cpr", "--in", "projects", "--match", "ends", "--format", "paths"}).out,
        later + "\n");
}

TEST_F(PathsTest, TheColumnIsFoundWhateverTheOptionsLeaveOut) {
    WriteResult("fln.csv", Use(project, "Tape Delay") + Use(project, "DX Echo", "DirectX"));
    Marlo({"options", "--ignore-directx", "on", "--ignore-off", "on"});
    EXPECT_EQ(Marlo({"report", "used", "--format", "paths"}).out, "/vst/R\u00E9verb.dll\n");
    EXPECT_EQ(Marlo({"find", "Tape Delay", "--format", "paths"}).out, project + "\n");
    EXPECT_EQ(Marlo({"find", "DX Echo", "--format", "paths"}).out, "");
}

TEST_F(PathsTest, NothingFoundIsNoOutput) {
    const auto found = Marlo({"find", "Nothing", "--format", "paths"});
    EXPECT_EQ(found.out, "");
    EXPECT_EQ(found.exitCode, 0);
    WriteResult("tln.csv", "");
    EXPECT_EQ(Marlo({"report", "used", "--format", "paths"}).out, "");
}

TEST_F(PathsTest, ANulByteEndsThemInsteadOfALineFeed) {
    const std::string nul(1, '\0');
    EXPECT_EQ(Marlo({"report", "installed", "--format", "paths", "-0"}).out,
              "/vst/R\u00E9verb.dll" + nul + "/vst/Unused.dll" + nul);
    EXPECT_EQ(Marlo({"find", "Tape Delay", "--format", "paths", "--null"}).out, project + nul);
}

TEST_F(PathsTest, TheBytesOfAPathArePrintedAsTheyAre) {
    WriteResult("installedplugins.csv", "\"VST\",\"A\",\"/vst/\xE9\x1b[2J.dll\"\r\n");
    EXPECT_EQ(Marlo({"report", "installed", "--format", "paths"}).out, "/vst/\xE9\x1b[2J.dll\n");
}

TEST_F(PathsTest, OnATerminalTheyCannotActOnIt) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    WriteResult("installedplugins.csv", "\"VST\",\"A\",\"/vst/\xE9\x1b[2J.dll\"\r\n");
    EXPECT_EQ(InTerminal({"report", "installed", "--format", "paths"}, "xterm"),
              "/vst/\u00E9\\x1B[2J.dll\r\n");
}

TEST_F(PathsTest, AReportWithoutPathsIsWrongUsage) {
    const auto result = Marlo({"report", "uninstalled", "--format", "paths"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.error,
              "marlo-cli: report: plug-ins that are not installed have no paths to print\n");
}

TEST_F(PathsTest, ANulByteBehindAnythingElseIsWrongUsage) {
    for (const std::string format : {"table", "csv", "json", "html"}) {
        const auto report = Marlo({"report", "used", "--format", format, "-0"});
        EXPECT_EQ(report.exitCode, 2) << format;
        EXPECT_EQ(report.out, "");
        EXPECT_EQ(report.error, "marlo-cli: report: --null goes with --format paths only\n");
    }
    const auto found = Marlo({"find", "a", "--null"});
    EXPECT_EQ(found.exitCode, 2);
    EXPECT_EQ(found.error, "marlo-cli: find: --null goes with --format paths only\n");
}

}  // namespace
}  // namespace marlo
