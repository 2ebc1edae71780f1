// How fast folders are walked, against "find" on the same trees.

#include <filesystem>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Baselines.h"
#include "bench/Data.h"
#include "bench/QuietWindow.h"
#include "bench/Report.h"
#include "core/LineWriter.h"
#include "inventory/ScanVSTFolder.h"
#include "scan/ProjectDiscovery.h"
#include "scan/SearchLists.h"

namespace marlo::bench {
namespace {

using benchmark::State;

void ScanTree(State& state, const std::string& tree) {
    const Application application = BenchApplication();
    QuietWindow window;
    std::size_t found = 0;
    for (auto iteration : state) {
        const std::string list = DataFolder() + "/list.csv";
        std::filesystem::remove(list);
        std::error_code error;
        LineWriter output(platform::File::OpenForAppending(list, error));
        bool cancelled = false;
        ScanVSTFolder(application, window, tree, true, output, cancelled);
        output.Flush();
        found = output.LineCount();
    }
    state.counters["libraries"] = static_cast<double>(found);
}

void DiscoverTree(State& state, const std::string& tree) {
    const Application application = BenchApplication();
    QuietWindow window;
    std::int32_t count = 1;
    for (auto iteration : state) {
        SearchLists lists;
        count = 1;
        GetListOfProjects(application, window, lists, tree, true, false, 0, count);
    }
    state.counters["projects"] = static_cast<double>(count - 1);
}

/// A tree in which every second file is of the kind looked for, and one in which all are.
template <class Walk>
void RegisterTree(const std::string& what, std::size_t folderCount, const std::string& extension,
                  Walk walk) {
    const auto add = [&](const std::string& name, const std::vector<std::string>& extensions) {
        const auto tree = [=] { return FileTree("tree-" + name, folderCount, extensions); };
        const std::string baseline = name + "-find";
        Register(baseline, [=](State& state) {
            RunProgram(state, {"find", tree(), "-iname", "*" + extension});
        });
        Register(name, [=](State& state) { walk(state, tree()); });
        Compare({.what = name + " of " + std::to_string(folderCount * 10) + " files, against find",
                 .numerator = name,
                 .denominator = baseline,
                 .atMost = 1.5});
    };
    add(what + "-half", {extension, ".dat"});
    add(what + "-all", {extension});
}

const bool registered = [] {
    RegisterTree("vst-scan", 2000, ".dll", ScanTree);
    RegisterTree("discovery", 10000, ".cpr", DiscoverTree);
    return true;
}();

}  // namespace
}  // namespace marlo::bench
