// How fast folders are walked, against "find" on the same trees.

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <vector>

#include <benchmark/benchmark.h>

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

/// Runs `find TREE -iname PATTERN`, its output thrown away.
void Find(State& state, const std::string& tree, const std::string& pattern) {
    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    std::vector<std::string> words = {"find", tree, "-iname", pattern};
    std::array<char*, 5> arguments = {words[0].data(), words[1].data(), words[2].data(),
                                      words[3].data(), nullptr};
    for (auto iteration : state) {
        pid_t process = 0;
        int status = 0;
        if (posix_spawnp(&process, "find", &actions, nullptr, arguments.data(), environ) != 0 ||
            waitpid(process, &status, 0) != process || status != 0)
            throw std::runtime_error("cannot run find");
    }
    posix_spawn_file_actions_destroy(&actions);
}

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
        Register(baseline, [=](State& state) { Find(state, tree(), "*" + extension); });
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
