// Paths that end with NUL bytes, through xargs.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "app/cli/ListOutput.h"
#include "app/cli/TerminalWindow.h"
#include "reports/Columns.h"
#include "tests/cli/ReportCommandTest.h"
#include "tests/support/ApplicationTest.h"

namespace marlo {
namespace {

/// Ends what a shell's command has of each argument.
const std::string kPrintEach = " | xargs -0 -n 1 printf '<%s>'";

using PathsToXargsTest = test::ReportCommandTest;

TEST_F(PathsToXargsTest, AProjectIsFoundUnderItsName) {
    const std::string odd =
        folder.Write("songs/it's  a \\ $HOME * \xE9\t\u66F2 .cpr", "");  // no comma, no line end
    WriteResult("fln.csv", "\"" + project + "\",\"Delay\",\"VST    \",\"On\"\r\n\"" + odd +
                               "\",\"Delay\",\"VST    \",\"On\"\r\n");
    const std::string command =
        "'" MARLO_CLI "' --app-folder '" + folder.Path("app") + "' find Delay --format paths -0";
    EXPECT_EQ(test::Run({"/bin/sh", "-c", command + kPrintEach}).out,
              "<" + project + "><" + odd + ">");
    EXPECT_EQ(test::Run({"/bin/sh", "-c", command + " | xargs -0 ls -d >/dev/null"}).exitCode, 0)
        << "the files are there";
}

/// Result files cannot hold every path; the output can.
using AnyPathToXargsTest = test::ApplicationTest;

TEST_F(AnyPathToXargsTest, LineFeedsAndQuotesComeThrough) {
    cli::TerminalWindow window(cli::ProgressStyle::None);
    ResultPane pane{application, window};
    pane.lstSongs.AddColumn(Column::Project);
    const std::vector<std::string> paths = {"/a b/c\nd.cpr", "/\"q\" 'r'.cpr", "/\xE9\\.cpr"};
    std::string expected;
    for (const std::string& path : paths) {
        pane.lstSongs.AddRow(path, path);
        expected += "<" + path + ">";
    }
    testing::internal::CaptureStdout();
    cli::PrintList(pane, "", {.format = cli::ListFormat::Paths, .endsWithNull = true});
    const std::string file = folder.Write("paths", testing::internal::GetCapturedStdout());
    EXPECT_EQ(test::Run({"/bin/sh", "-c", "cat '" + file + "'" + kPrintEach}).out, expected);
}

}  // namespace
}  // namespace marlo
