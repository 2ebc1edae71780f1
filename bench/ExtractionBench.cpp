// How fast projects are scanned, against a plain loop that reads the same files.

#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Baselines.h"
#include "bench/Data.h"
#include "bench/Report.h"
#include "core/Application.h"
#include "scan/ProjectPlugins.h"
#include "scan/SearchLists.h"

namespace marlo::bench {
namespace {

constexpr std::size_t kMiB = std::size_t{1024} * 1024;

using benchmark::State;

void ScanAll(State& state, const std::vector<std::string>& paths) {
    const Application application = BenchApplication();
    std::size_t found = 0;
    for (auto iteration : state) {
        SearchLists lists;
        for (const std::string& path : paths)
            GetPlugins4Project(application, lists, path);
        found = lists.PluginOccurrences.size();
    }
    state.counters["banks"] = static_cast<double>(found);
}

std::string OnlyCs(std::size_t size) {
    return std::string(size, 'C');
}

/// A zero byte far in front, then nothing but banks, and a zero byte at the end.
std::string ChainedBanks(std::size_t size) {
    std::string bytes("x\0", 2);
    bytes.append(size / 2, 'x');
    while (bytes.size() < size)
        bytes += "CcnKsizeFBCh";
    return bytes + std::string(64, '\0');
}

/// The same, without a zero byte at the end: the first name already runs out of the file.
std::string ChainedBanksWithoutEnd(std::size_t size) {
    std::string bytes = ChainedBanks(size);
    bytes.resize(size);
    return bytes;
}

/// A zero byte, then a million banks and more whose one name holds all of them.
std::string BanksThatShareAName(std::size_t size) {
    std::string bytes("x\0", 2);
    bytes.append(60, 'x');
    while (bytes.size() < size)
        bytes += "CcnKsizeFxBk";
    return bytes + std::string(64, '\0');
}

/// Banks of their own with the same name of 1,000 characters.
std::string BanksWithOneLongName(std::size_t size) {
    std::string bank(60, '\0');
    bank += std::string(36, '1') + std::string(1000, 'n') + std::string(17, '\0') + "CcnKsizeFxBk";
    std::string bytes(100, '\0');
    while (bytes.size() < size)
        bytes += bank;
    return bytes + std::string(64, '\0');
}

/// A hostile file in three sizes. How often its bytes go into a record is what it costs.
void RegisterHostile(const std::string& name, std::string (*make)(std::size_t size),
                     double mostRatio) {
    const auto paths = [=](std::size_t mebibytes) {
        return std::vector{HostileFile(name, make, mebibytes * kMiB)};
    };
    Register({.name = name,
              .what = "scan of one project of " + name + ", MiB",
              .run = [=](State& state, std::size_t size) { ScanAll(state, paths(size)); },
              .baselineName = "reading it",
              .baseline = [=](State& state, std::size_t size) { ReadFiles(state, paths(size)); },
              .sizes = {4, 16, 64},
              .mostRatio = mostRatio,
              // The larger ones leave the processor's caches behind; a quadratic cost would be 16.
              .mostGrowth = 4});
}

const bool registered = [] {
    Register(
        {.name = "library",
         .what = "scan of projects of 80 KiB to 8 MiB",
         .run = [](State& state, std::size_t count) { ScanAll(state, RealisticLibrary(count)); },
         .baselineName = "reading them",
         .baseline = [](State& state,
                        std::size_t count) { ReadFiles(state, RealisticLibrary(count)); },
         .sizes = {75, 150, 300},
         .mostRatio = 1.4,
         .mostGrowth = 1.5});
    Register({.name = "same-plugins",
              .what = "scan of projects of 4 KiB with the same 20 plug-ins",
              .run = [](State& state, std::size_t count) { ScanAll(state, SmallProjects(count)); },
              .baselineName = "reading them",
              .baseline = [](State& state,
                             std::size_t count) { ReadFiles(state, SmallProjects(count)); },
              .sizes = {2500, 5000, 10000},
              .mostRatio = 6,
              .mostGrowth = 2});
    RegisterHostile("only-Cs", OnlyCs, 3);
    // These end at the limit on record text, beside which reading a file of some MiB is nothing.
    RegisterHostile("chained-banks", ChainedBanks, 400);
    RegisterHostile("banks-that-share-a-name", BanksThatShareAName, 400);
    RegisterHostile("chained-banks-without-end", ChainedBanksWithoutEnd, 10);
    RegisterHostile("banks-with-one-long-name", BanksWithOneLongName, 20);
    return true;
}();

}  // namespace
}  // namespace marlo::bench
