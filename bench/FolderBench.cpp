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
#include "inventory/GetInstalledPlugins.h"
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
void RegisterTrees(const std::string& what, const std::vector<std::size_t>& fileCounts,
                   const std::string& extension, Walk walk) {
    const auto add = [&](const std::string& name, const std::vector<std::string>& extensions) {
        const auto tree = [=](std::size_t fileCount) {
            return FileTree("tree-" + name + "-" + std::to_string(fileCount), fileCount,
                            extensions);
        };
        Register({.name = name,
                  .what = name + ", files",
                  .run = [=](State& state, std::size_t count) { walk(state, tree(count)); },
                  .baselineName = "find",
                  .baseline =
                      [=](State& state, std::size_t count) {
                          RunProgram(state, {"find", tree(count), "-iname", "*" + extension});
                      },
                  .sizes = fileCounts,
                  .mostRatio = 1.5,
                  .mostGrowth = 1.5});
    };
    add(what + "-half", {extension, ".dat"});
    add(what + "-all", {extension});
}

const bool registered = [] {
    RegisterTrees("vst-scan", {2'000, 6'000, 20'000}, ".dll", ScanTree);
    RegisterTrees("discovery", {10'000, 30'000, 100'000}, ".cpr", DiscoverTree);
    return true;
}();

}  // namespace
}  // namespace marlo::bench
