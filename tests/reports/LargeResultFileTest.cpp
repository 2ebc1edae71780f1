#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "reports/ResultSearch.h"
#include "tests/support/ReportTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

class LargeResultFileTest : public test::ReportTest {};

TEST_F(LargeResultFileTest, ASearchThrough64MegabytesTakesLessThan16MiB) {
    constexpr std::size_t size = 64'000'000;
    const std::string project = folder.Write("a.cpr", "");
    WriteInstalled({});
    const std::string path = folder.Path("resultfiles/fln.csv");
    {
        std::ofstream file(path, std::ios::binary);
        std::size_t written = 0;
        for (int i = 0; written < size; ++i) {
            const std::string line = Quoted("/songs/" + std::to_string(i) + "/a project.cpr") +
                                     ",\"Reverb\",\"VST    \",\"On\"\r\n";
            file << line;
            written += line.size();
        }
        file << Quoted(project) << ",\"Delay\",\"VST    \",\"On\"\r\n";
    }
    const std::size_t taken = test::MemoryTakenBy([&] {
        cmdFind_Click(pane, {.mode = SearchMode::ProjectsByPlugin,
                             .txtSearchText = "Delay",
                             .cboSearchType = MatchType::Contains,
                             .chkIgnoreCase = false});
    });
    EXPECT_LT(taken, std::size_t{16} * 1024 * 1024);
    EXPECT_EQ(Names(), test::Texts{project});
}

}  // namespace
}  // namespace marlo
