// How fast projects are scanned, against a plain loop that reads the same files.

#include <array>
#include <fcntl.h>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Data.h"
#include "bench/Report.h"
#include "core/Application.h"
#include "scan/ProjectPlugins.h"
#include "scan/SearchLists.h"

namespace marlo::bench {
namespace {

constexpr std::size_t kMiB = std::size_t{1024} * 1024;

using benchmark::State;

/// Aligned, as reading into a buffer that is not takes some 40 % longer.
struct alignas(4096) PlainBuffer : std::array<char, std::size_t{256} * 1024> {};

std::size_t ReadPlainly(const std::string& path, PlainBuffer& buffer) {
    const int file = open(path.c_str(), O_RDONLY);
    if (file < 0)
        throw std::runtime_error("cannot open " + path);
    std::size_t total = 0;
    for (;;) {
        const ssize_t count = read(file, buffer.data(), buffer.size());
        if (count <= 0)
            break;
        total += static_cast<std::size_t>(count);
    }
    close(file);
    return total;
}

void ReadAll(State& state, const std::vector<std::string>& paths) {
    static PlainBuffer buffer;
    std::size_t total = 0;
    for (auto iteration : state)
        for (const std::string& path : paths)
            total += ReadPlainly(path, buffer);
    state.SetBytesProcessed(static_cast<std::int64_t>(total));
}

void ScanAll(State& state, const std::vector<std::string>& paths) {
    const Application application = BenchApplication();
    std::size_t found = 0;
    for (auto iteration : state) {
        SearchLists lists;
        for (const std::string& path : paths)
            GetPlugins4Project(application, lists, path);
        found = lists.PluginOccurrences.UpperBound();
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

/// What four times the input may cost. Beyond four, as the larger lists leave the processor's
/// caches behind; a quadratic cost would be sixteen.
constexpr double kMostGrowth = 8;

/// A hostile file in two sizes; time has to grow as the size does.
void RegisterGrowth(const std::string& name, std::string (*make)(std::size_t size)) {
    for (const std::size_t size : {16 * kMiB, 64 * kMiB}) {
        const std::string run = name + "-" + std::to_string(size / kMiB) + "MiB";
        Register(run, [=](State& state) { ScanAll(state, {HostileFile(name, make, size)}); });
    }
    Compare({.what = name + ", 64 MiB against 16 MiB (ideal: 4)",
             .numerator = name + "-64MiB",
             .denominator = name + "-16MiB",
             .atMost = kMostGrowth});
}

const bool registered = [] {
    Register("library-read", [](State& state) { ReadAll(state, RealisticLibrary()); });
    Register("library-scan", [](State& state) { ScanAll(state, RealisticLibrary()); });
    Compare({.what = "throughput of scanning against reading, 300 projects, 400 MB",
             .numerator = "library-read",
             .denominator = "library-scan",
             .atLeast = 0.7});

    RegisterGrowth("only-Cs", OnlyCs);
    RegisterGrowth("chained-banks", ChainedBanks);
    RegisterGrowth("chained-banks-without-end", ChainedBanksWithoutEnd);
    RegisterGrowth("banks-that-share-a-name", BanksThatShareAName);
    RegisterGrowth("banks-with-one-long-name", BanksWithOneLongName);

    for (const std::size_t count : {2500U, 10000U})
        Register("same-plugins-" + std::to_string(count) + "-projects",
                 [=](State& state) { ScanAll(state, SmallProjects(count)); });
    Compare({.what = "same plug-ins, 10,000 projects against 2,500 (ideal: 4)",
             .numerator = "same-plugins-10000-projects",
             .denominator = "same-plugins-2500-projects",
             .atMost = kMostGrowth});
    return true;
}();

}  // namespace
}  // namespace marlo::bench
