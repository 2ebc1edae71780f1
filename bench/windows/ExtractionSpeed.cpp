// How fast the Windows program scans projects, against a plain loop of ReadFile over the same
// files.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>
#include <windows.h>

#include "bench/Data.h"
#include "scan/ProjectPlugins.h"
#include "scan/SearchLists.h"

namespace marlo::bench {
namespace {

constexpr std::size_t kBlock = std::size_t{256} * 1024;
constexpr int kRounds = 9;
constexpr double kBound = 0.7;

/// Reads the files to their ends. @return how many bytes they have.
std::size_t ReadAll(const std::vector<std::string>& paths) {
    alignas(64) static std::array<char, kBlock> block;
    std::size_t total = 0;
    for (const std::string& path : paths) {
        const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file == INVALID_HANDLE_VALUE)
            throw std::runtime_error("cannot read " + path);
        DWORD count = 0;
        while (ReadFile(file, block.data(), kBlock, &count, nullptr) != FALSE && count > 0)
            total += count;
        CloseHandle(file);
    }
    return total;
}

void ScanAll(const std::vector<std::string>& paths) {
    const Application application = BenchApplication();
    SearchLists lists;
    for (const std::string& path : paths)
        if (!GetPlugins4Project(application, lists, path))
            throw std::runtime_error("cannot scan " + path);
}

double SecondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The machine is noisy: the middle of several rounds, in which both take turns, counts.
double MiddleOf(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + kRounds / 2, values.end());
    return values[kRounds / 2];
}

int Run() {
    const std::vector<std::string> paths = RealisticLibrary(kLibraryFiles);
    const double megabytes = static_cast<double>(ReadAll(paths)) / 1e6;
    std::vector<double> read;
    std::vector<double> scanned;
    std::vector<double> ratios;
    for (int round = 0; round < kRounds; ++round) {
        read.push_back(SecondsOf([&] { ReadAll(paths); }));
        scanned.push_back(SecondsOf([&] { ScanAll(paths); }));
        ratios.push_back(read.back() / scanned.back());
    }
    const double ratio = MiddleOf(ratios);
    std::printf("Projects of %.0f MB, middle of %d rounds\n", megabytes, kRounds);
    std::printf("plain ReadFile loop  %7.0f MB/s\n", megabytes / MiddleOf(read));
    std::printf("extraction           %7.0f MB/s\n", megabytes / MiddleOf(scanned));
    std::printf("ratio                %7.2f      (at least %.1f: %s)\n", ratio, kBound,
                ratio >= kBound ? "yes" : "NO");
    return ratio >= kBound ? 0 : 1;
}

}  // namespace
}  // namespace marlo::bench

int main() {
    try {
        return marlo::bench::Run();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 2;
    }
}
