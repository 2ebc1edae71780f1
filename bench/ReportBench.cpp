// How fast the reports, the search and their list are.

#include <algorithm>
#include <filesystem>
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

constexpr std::size_t kRows = 200'000;

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

void ShowUsed(State& state, const std::string& folder) {
    const Application application = ApplicationIn(folder);
    QuietWindow window;
    ResultPane pane{application, window};
    for (const char* header : {"Used Plugins", "Type", "Path", "Status"})
        pane.lstSongs.AddColumn(header);
    for (auto iteration : state) {
        pane.lstSongs.ClearRows();
        ShowUsedPlugins(pane, 2, 3, 4);
    }
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

/// The names of many different plug-ins, in no order.
std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < kRows; ++i)
        names.push_back(PluginName(i));
    return names;
}

void FillList(ResultList& list, const std::vector<std::string>& names) {
    list.AddColumn("Plugin");
    for (const std::string& name : names)
        list.AddRow(name, name);
}

void SortTexts(State& state) {
    const std::vector<std::string> names = Names();
    for (auto iteration : state) {
        std::vector<std::string> sorted = names;
        std::stable_sort(sorted.begin(), sorted.end());
        benchmark::DoNotOptimize(sorted.data());
    }
}

void FillAndSortList(State& state) {
    const std::vector<std::string> names = Names();
    for (auto iteration : state) {
        ResultList list;
        FillList(list, names);
        list.SetSorted(true);
        benchmark::DoNotOptimize(list.RowAt(1));
    }
}

void FindKeys(State& state) {
    const std::vector<std::string> names = Names();
    ResultList list;
    FillList(list, names);
    for (auto iteration : state)
        for (const std::string& name : names)
            if (list.AddRowUnlessThere(name, name))
                throw std::runtime_error("a key was not found");
}

/// A report over three sizes of its files; the second file has a tenth of the lines of the first.
void RegisterReport(const std::string& name, const char* kind, bool isOfUses) {
    const auto benchmarkOf = [&](std::size_t lines) {
        return "report-" + name + "-" + std::to_string(lines);
    };
    for (const std::size_t lines : {1'000U, 10'000U, 100'000U})
        Register(benchmarkOf(lines), [=](State& state) {
            const std::size_t used = isOfUses ? lines : lines / 10;
            const std::size_t installed = isOfUses ? lines / 10 : lines;
            ShowReport(state, ResultFilesFolder(used, installed), kind);
        });
    Compare({.what = "report " + name + ", 100,000 lines against 10,000 (ideal: 10)",
             .numerator = benchmarkOf(100'000),
             .denominator = benchmarkOf(10'000),
             .atMost = 15});
}

const bool registered = [] {
    RegisterReport("used", report_kind::kUsed, true);
    RegisterReport("uninstalled", report_kind::kUninstalled, true);
    RegisterReport("installed", report_kind::kAll, false);
    RegisterReport("unused", report_kind::kUnused, false);
    Register("report-getline", [](State& state) {
        const std::string folder = ResultFilesFolder(100'000, 10'000) + "/resultfiles";
        ReadLines(state, {folder + "/tln.csv", folder + "/installedplugins.csv"});
    });
    Register("report-used-rows",
             [](State& state) { ShowUsed(state, ResultFilesFolder(100'000, 10'000)); });
    Compare({.what = "report used, 100,000 lines, 10,000 installed, against getline over both",
             .numerator = "report-used-rows",
             .denominator = "report-getline",
             .atMost = 10});
    Compare({.what = "the same with its rows sorted",
             .numerator = "report-used-100000",
             .denominator = "report-getline",
             .atMost = 30});

    Register("search-grep", [](State& state) {
        // Into /dev/null, grep would stop at the first line that it finds.
        RunProgram(state, {"grep", "-c", kRarePlugin, SearchFolder() + "/resultfiles/fln.csv"},
                   DataFolder() + "/grep.out");
    });
    const SearchPane search{.txtSearchText = kRarePlugin, .cboSearchType = match_type::kContains};
    Register("search", [=](State& state) { Search(state, SearchFolder(), search, kRareUses); });
    Compare({.what = "search of 1,000,000 lines, 1,000 hits, against grep -c",
             .numerator = "search",
             .denominator = "search-grep",
             .atMost = 3});
    SearchPane ignoringCase = search;
    ignoringCase.chkIgnoreCase = true;
    Register("search-ignoring-case",
             [=](State& state) { Search(state, SearchFolder(), ignoringCase, kRareUses); });
    Compare({.what = "the same, ignoring case",
             .numerator = "search-ignoring-case",
             .denominator = "search-grep",
             .atMost = 5});

    Register("list-stable-sort", SortTexts);
    Register("list-fill-and-sort", FillAndSortList);
    Register("list-find-keys", FindKeys);
    Compare({.what = "filling and sorting a list of 200,000 rows, against stable_sort of the texts",
             .numerator = "list-fill-and-sort",
             .denominator = "list-stable-sort",
             .atMost = 4});
    Compare({.what = "finding each of its keys, against the same",
             .numerator = "list-find-keys",
             .denominator = "list-stable-sort",
             .atMost = 1});
    return true;
}();

}  // namespace
}  // namespace marlo::bench
