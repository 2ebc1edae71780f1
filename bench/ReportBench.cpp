// How fast the reports, the search and their list are.

#include <stdexcept>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Baselines.h"
#include "bench/Data.h"
#include "bench/QuietWindow.h"
#include "bench/Report.h"
#include "reports/PluginReports.h"
#include "reports/ReportView.h"
#include "reports/ResultSearch.h"

namespace marlo::bench {
namespace {

using benchmark::State;

Application ApplicationIn(const std::string& folder) {
    Application application = BenchApplication();
    application.folder = folder;
    return application;
}

void ShowReport(State& state, const std::string& folder, const char* kind) {
    const Application application = ApplicationIn(folder);
    QuietWindow window;
    ResultPane pane{application, window};
    for (auto iteration : state) {
        ShowInstalledPlugins(pane, kind);
    }
    state.counters["rows"] = static_cast<double>(pane.lstSongs.RowCount());
}

void Search(State& state, const std::string& folder, const SearchPane& search, std::size_t hits) {
    const Application application = ApplicationIn(folder);
    QuietWindow window;
    for (auto iteration : state) {
        ResultPane pane{application, window};
        cmdFind_Click(pane, search);
        if (pane.lstSongs.RowCount() != hits)
            throw std::runtime_error("a search did not find what is there");
    }
}

/// A report whose second file has a tenth of the lines of the first, which is what its size tells.
void RegisterReport(const std::string& name, const char* kind, bool isOfUses) {
    const auto folder = [=](std::size_t lines) {
        return ResultFilesFolder(isOfUses ? lines : lines / 10, isOfUses ? lines / 10 : lines);
    };
    Register(
        {.name = "report-" + name,
         .what = "report of " + name + " plug-ins, rows sorted, lines",
         .run = [=](State& state, std::size_t lines) { ShowReport(state, folder(lines), kind); },
         .baselineName = "getline over both files",
         .baseline =
             [=](State& state, std::size_t lines) {
                 const std::string files = folder(lines) + "/resultfiles";
                 ReadLines(state, {files + "/tln.csv", files + "/installedplugins.csv"});
             },
         .sizes = {1'000, 10'000, 100'000},
         .mostRatio = 30,
         // What the smallest needs fits the processor's caches.
         .mostGrowth = 2.5});
}

void RegisterSearch(const std::string& name, const std::string& what, bool ignoresCase,
                    double mostRatio) {
    Register({.name = name,
              .what = what,
              .run =
                  [=](State& state, std::size_t lines) {
                      const SearchPane search{.txtSearchText = kRarePlugin,
                                              .cboSearchType = MatchType::Contains,
                                              .chkIgnoreCase = ignoresCase};
                      Search(state, SearchFolder(lines), search, lines / kLinesPerRareUse);
                  },
              .baselineName = ignoresCase ? "grep -c -F -i" : "grep -c -F",
              .baseline =
                  [=](State& state, std::size_t lines) {
                      // Into /dev/null, grep would stop at the first line that it finds.
                      RunProgram(state,
                                 {"grep", "-c", ignoresCase ? "-Fi" : "-F", kRarePlugin,
                                  SearchFolder(lines) + "/resultfiles/fln.csv"},
                                 DataFolder() + "/grep.out");
                  },
              .sizes = {10'000, 100'000, 1'000'000},
              .mostRatio = mostRatio,
              .mostGrowth = 1.5});
}

const bool registered = [] {
    RegisterReport("used", NameOf(ReportKind::Used), true);
    RegisterReport("uninstalled", NameOf(ReportKind::Uninstalled), true);
    RegisterReport("installed", NameOf(ReportKind::All), false);
    RegisterReport("unused", NameOf(ReportKind::Unused), false);
    RegisterSearch("search", "search of the result files, lines", false, 3);
    RegisterSearch("search-ignoring-case", "the same, ignoring case, lines", true, 3);
    return true;
}();

}  // namespace
}  // namespace marlo::bench
