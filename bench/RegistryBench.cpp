// How fast a Wine prefix is read, and how fast the list of installed plug-ins answers.

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <unordered_set>

#include <benchmark/benchmark.h>

#include "bench/Baselines.h"
#include "bench/Data.h"
#include "bench/QuietWindow.h"
#include "bench/Report.h"
#include "core/LineWriter.h"
#include "inventory/DirectXPlugins.h"
#include "inventory/GetInstalledPlugins.h"
#include "inventory/InstalledPlugins.h"
#include "platform/FileSystem.h"
#include "platform/Machine.h"

namespace marlo::bench {
namespace {

using benchmark::State;

constexpr std::size_t kMB = 1'000'000;

/// From nothing to the first answer, which needs the whole file.
void LoadPrefix(State& state, std::size_t size) {
    const std::string folder = WinePrefixFolder(size, 20);
    for (auto iteration : state) {
        std::error_code error;
        const auto registry = platform::OpenWinePrefix(folder, error);
        platform::RegistryKey key = 0;
        if (registry->OpenKey(platform::kClassesRoot, "CLSID", key) != 0)
            throw std::runtime_error("no classes in " + folder);
    }
    state.counters["MB/s"] = benchmark::Counter(static_cast<double>(size) / kMB,
                                                benchmark::Counter::kIsIterationInvariantRate);
}

/// The three walks over a prefix that is read already.
void WalkPrefix(State& state, std::size_t size) {
    std::error_code error;
    const auto registry = platform::OpenWinePrefix(WinePrefixFolder(size, 20), error);
    const Application application{
        DataFolder(), platform::SystemClock(), platform::SystemDesktop(), *registry, {}};
    QuietWindow window;
    for (auto iteration : state) {
        LineWriter output(platform::File::OpenForAppending(DataFolder() + "/effects.csv", error));
        GetDirectXPlugins(application, window, output);
        if (output.LineCount() != 20)
            throw std::runtime_error("the effects of the prefix were not found");
    }
}

constexpr std::size_t kListed = 1000;

std::string ListedName(std::size_t question) {
    return "Plug-in " + std::to_string(question % (2 * kListed));
}

/// Questions to a list of 1,000 plug-ins; every second one is in it.
void AskList(State& state, std::size_t questions) {
    Application application = BenchApplication();
    const std::string path = ApplicationPath(application, "\\resultfiles\\installedplugins.csv");
    std::filesystem::create_directories(application.folder + "/resultfiles");
    std::ofstream file(path, std::ios::binary);
    for (std::size_t i = 0; i < kListed; ++i)
        file << "\"VST\",\"Plug-in " << i << "\",\"/vst/Plug-in " << i << ".dll\"\r\n";
    file.close();
    for (auto iteration : state) {
        InstalledPlugins installed(application);
        std::size_t found = 0;
        for (std::size_t i = 0; i < questions; ++i)
            found += installed.PluginIsInstalled(ListedName(i)) ? 1 : 0;
        if (found != questions / 2)
            throw std::runtime_error("a wrong answer");
    }
}

/// The same questions to a set that is in memory.
void AskSet(State& state, std::size_t questions) {
    std::unordered_set<std::string> names;
    for (std::size_t i = 0; i < kListed; ++i)
        names.insert("Plug-in " + std::to_string(i));
    for (auto iteration : state) {
        std::size_t found = 0;
        for (std::size_t i = 0; i < questions; ++i)
            found += names.count(ListedName(i));
        benchmark::DoNotOptimize(found);
    }
}

const bool registered = [] {
    Register({.name = "prefix-load",
              .what = "reading a Wine prefix, MB",
              .run = [](State& state, std::size_t size) { LoadPrefix(state, size * kMB); },
              .baselineName = "getline over its lines",
              .baseline =
                  [](State& state, std::size_t size) {
                      ReadLines(state, {WinePrefixFolder(size * kMB, 20) + "/system.reg"});
                  },
              .sizes = {2, 10, 50},
              .mostRatio = 15,
              .mostGrowth = 2.5});
    Register({.name = "prefix-walk",
              .what = "finding 20 effects in a prefix, MB",
              .run = [](State& state, std::size_t size) { WalkPrefix(state, size * kMB); },
              .baselineName = "reading it",
              .baseline = [](State& state, std::size_t size) { LoadPrefix(state, size * kMB); },
              .sizes = {2, 10, 50},
              .mostRatio = 20,
              .mostGrowth = 2.5});
    Register({.name = "list-questions",
              .what = "questions to a list of 1,000 plug-ins, which reads it",
              .run = AskList,
              .baselineName = "questions to an unordered_set",
              .baseline = AskSet,
              .sizes = {2'000, 20'000, 200'000},
              .mostRatio = 4,
              .mostGrowth = 1.5});
    return true;
}();

}  // namespace
}  // namespace marlo::bench
