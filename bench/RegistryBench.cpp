// How fast a Wine prefix is read, and how fast the list of installed plug-ins answers.

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>

#include <benchmark/benchmark.h>

#include "bench/Baselines.h"
#include "bench/Data.h"
#include "bench/QuietWindow.h"
#include "bench/Report.h"
#include "core/LineWriter.h"
#include "inventory/DirectXPlugins.h"
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

/// A list of 1,000 plug-ins that answers 100,000 questions, and one that is read as often.
void AskList(State& state, int questions) {
    Application application = BenchApplication();
    const std::string path = ApplicationPath(application, "\\resultfiles\\installedplugins.csv");
    std::filesystem::create_directories(application.folder + "/resultfiles");
    std::ofstream file(path, std::ios::binary);
    for (int i = 0; i < 1000; ++i)
        file << "\"VST\",\"Plug-in " << i << "\",\"/vst/Plug-in " << i << ".dll\"\r\n";
    file.close();
    for (auto iteration : state) {
        InstalledPlugins installed(application);
        // The first one asks for a plug-in that is not there, which reads the whole list.
        for (int i = 1999; i < 1999 + questions; ++i)
            if (installed.PluginIsInstalled("Plug-in " + std::to_string(i % 2000)) !=
                (i % 2000 < 1000))
                throw std::runtime_error("a wrong answer");
    }
}

const bool registered = [] {
    Register("prefix-getline", [](State& state) {
        ReadLines(state, {WinePrefixFolder(50 * kMB, 20) + "/system.reg"});
    });
    for (const std::size_t size : {2 * kMB, 50 * kMB})
        Register("prefix-load-" + std::to_string(size / kMB) + "MB",
                 [=](State& state) { LoadPrefix(state, size); });
    Register("prefix-walk-2MB", [](State& state) { WalkPrefix(state, 2 * kMB); });
    Compare({.what = "reading a Wine prefix of 50 MB, against getline over its lines",
             .numerator = "prefix-load-50MB",
             .denominator = "prefix-getline",
             .atMost = 15});
    Compare({.what = "the same, 50 MB against 2 MB (ideal: 25)",
             .numerator = "prefix-load-50MB",
             .denominator = "prefix-load-2MB",
             .atMost = 60});

    Compare({.what = "finding 20 effects in a prefix of 2 MB, against reading it",
             .numerator = "prefix-walk-2MB",
             .denominator = "prefix-load-2MB",
             .atMost = 20});

    Register("list-1-question", [](State& state) { AskList(state, 1); });
    Register("list-100000-questions", [](State& state) { AskList(state, 100'000); });
    Compare({.what = "100,000 questions to a list of 1,000 plug-ins, against 1 (which reads it)",
             .numerator = "list-100000-questions",
             .denominator = "list-1-question",
             .atMost = 200});
    return true;
}();

}  // namespace
}  // namespace marlo::bench
