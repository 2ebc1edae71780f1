// The hot paths over fixed inputs, each counted on its own by callgrind (see bench/count).

#include <filesystem>
#include <functional>
#include <string>
#include <valgrind/callgrind.h>
#include <vector>

#include "bench/Data.h"
#include "bench/QuietWindow.h"
#include "core/LineWriter.h"
#include "core/Records.h"
#include "core/Settings.h"
#include "inventory/DirectXPlugins.h"
#include "inventory/GetInstalledPlugins.h"
#include "platform/Machine.h"
#include "reports/ListPage.h"
#include "reports/PluginReports.h"
#include "reports/ReportView.h"
#include "reports/ResultSearch.h"
#include "scan/ProjectDiscovery.h"
#include "scan/ProjectPlugins.h"

namespace marlo::bench {
namespace {

/// Runs a path once for what is done only once, and counts it the second time.
void Count(const char* name, const std::function<void()>& path) {
    path();
    CALLGRIND_ZERO_STATS;
    path();
    CALLGRIND_DUMP_STATS_AT(name);
}

Application ApplicationIn(const std::string& folder) {
    return {
        folder, platform::SystemClock(), platform::SystemDesktop(), platform::SystemRegistry(), {}};
}

void ScanProjects(const std::vector<std::string>& paths) {
    const Application application = BenchApplication();
    SearchLists lists;
    for (const std::string& path : paths)
        GetPlugins4Project(application, lists, path);
}

LineWriter NewList() {
    const std::string path = DataFolder() + "/counted.csv";
    std::error_code error;
    std::filesystem::remove(path, error);
    return LineWriter(platform::File::OpenForAppending(path, error));
}

void CountScans() {
    const auto library = RealisticLibrary(10);
    Count("scan-10-projects", [&] { ScanProjects(library); });
    const auto small = SmallProjects(500);
    Count("scan-500-projects-with-the-same-plug-ins", [&] { ScanProjects(small); });
}

void CountWalks() {
    QuietWindow window;
    const std::string projects = FileTree("tree-counts-cpr", 2000, {".cpr", ".dat"});
    Count("discovery-2000-files", [&] {
        SearchLists lists;
        std::int32_t count = 1;
        GetListOfProjects(BenchApplication(), window, lists, projects, true, false, 0, count);
    });
    const std::string libraries = FileTree("tree-counts-dll", 2000, {".dll", ".dat"});
    Count("vst-scan-2000-files", [&] {
        LineWriter output = NewList();
        bool cancelled = false;
        ScanVSTFolder(BenchApplication(), window, libraries, true, output, cancelled);
    });
}

void CountInventory() {
    QuietWindow window;
    const std::string prefix = WinePrefixFolder(1'000'000, 20);
    Count("effects-in-a-prefix-of-1-MB", [&] {
        std::error_code error;
        const auto registry = platform::OpenWinePrefix(prefix, error);
        const Application application{
            DataFolder(), platform::SystemClock(), platform::SystemDesktop(), *registry, {}};
        LineWriter output = NewList();
        GetDirectXPlugins(application, window, output);
    });
}

void CountReports() {
    QuietWindow window;
    const Application reports = ApplicationIn(ResultFilesFolder(10'000, 1'000));
    const auto show = [&](const char* kind) {
        ResultPane pane{reports, window};
        ShowInstalledPlugins(pane, kind);
    };
    Count("report-of-used-10000-lines", [&] { show(NameOf(ReportKind::Used)); });
    Count("report-of-uninstalled-10000-lines", [&] { show(NameOf(ReportKind::Uninstalled)); });
    const Application search = ApplicationIn(SearchFolder(100'000));
    const auto find = [&](bool ignoresCase) {
        ResultPane pane{search, window};
        cmdFind_Click(pane, {.txtSearchText = kRarePlugin,
                             .cboSearchType = MatchType::Contains,
                             .chkIgnoreCase = ignoresCase});
    };
    Count("search-100000-lines", [&] { find(false); });
    Count("search-100000-lines-ignoring-case", [&] { find(true); });
}

void CountLists() {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < 20'000; ++i)
        names.push_back(PluginName(i));
    ResultList list;
    Count("list-20000-rows-sorted", [&] {
        list = ResultList();
        list.AddColumn("Plugin");
        for (const std::string& name : names)
            list.AddRow(name, name);
        list.SetSorted(true);
    });
    Count("list-as-html", [&] { ListAsHtml(list, 1, "Plugins", {}); });
}

void CountCore() {
    const Application application = BenchApplication();
    const std::string record = R"("/home/anna/Songs/Song 1.cpr","Tape Delay","VST    ","On")";
    Count("split-10000-records", [&] {
        for (int i = 0; i < 10'000; ++i)
            SplitRecord(application, record, 4);
    });
    Count("read-1000-settings", [&] {
        for (int i = 0; i < 1'000; ++i)
            getSetting(application, setting::kLastFolder);
    });
}

}  // namespace
}  // namespace marlo::bench

int main() {
    using namespace marlo::bench;
    CountCore();
    CountScans();
    CountWalks();
    CountInventory();
    CountReports();
    CountLists();
}
