// How fast the terminal program is as a whole, from its start to its end.

#include <filesystem>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Baselines.h"
#include "bench/Data.h"
#include "bench/Report.h"

namespace marlo::bench {
namespace {

using benchmark::State;

void SearchLibrary(State& state, std::size_t projects) {
    const std::string folder = DataFolder() + "/program";
    std::filesystem::create_directories(folder + "/resultfiles");
    RunProgram(state, {MARLO_CLI, "--app-folder", folder, "search", LibraryFolder(projects)});
}

const bool registered = [] {
    Register({.name = "program-search",
              .what = "`marlo-cli search` of projects of 80 KiB to 8 MiB",
              .run = SearchLibrary,
              .baselineName = "reading them",
              .baseline =
                  [](State& state, std::size_t projects) {
                      ReadFiles(state, ProjectsOf(LibraryFolder(projects)));
                  },
              .sizes = {500, 1600, 5000},
              .mostRatio = 1.25,
              .mostGrowth = 1.25});
    Register({.name = "program-version",
              .what = "`marlo-cli --version`",
              .run =
                  [](State& state, std::size_t /*size*/) {
                      RunProgram(state, {MARLO_CLI, "--version"});
                  },
              .baselineName = "an empty program",
              .baseline = [](State& state,
                             std::size_t /*size*/) { RunProgram(state, {MARLO_EMPTY_PROGRAM}); },
              .sizes = {1},
              .mostRatio = 5,
              .mostGrowth = 1});
    return true;
}();

}  // namespace
}  // namespace marlo::bench
