#include "bench/Data.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>

#include "tools/ProjectWriter.h"

namespace marlo::bench {

namespace {

constexpr std::size_t kLibraryFiles = 300;
constexpr double kSmallest = 80.0 * 1024;
constexpr double kLargest = 8.0 * 1024 * 1024;
constexpr double kLibrarySize = 400e6;

/// Writes a file unless it is there; a file that is there is whole.
std::string WriteOnce(const std::string& name, const auto& make) {
    const auto path = std::filesystem::path(DataFolder()) / name;
    if (std::filesystem::exists(path))
        return path.string();
    std::filesystem::create_directories(path.parent_path());
    const std::string unfinished = path.string() + ".new";
    std::ofstream file(unfinished, std::ios::binary);
    file << make();
    file.close();
    if (!file)
        throw std::runtime_error("cannot write " + path.string());
    std::filesystem::rename(unfinished, path);
    return path.string();
}

/// File sizes from the smallest to the largest, spread evenly over the orders of magnitude, then
/// scaled to the library's size.
std::vector<std::size_t> LibrarySizes() {
    std::vector<double> sizes;
    double total = 0;
    for (std::size_t i = 0; i < kLibraryFiles; ++i) {
        const double share = static_cast<double>(i) / (kLibraryFiles - 1);
        sizes.push_back(kSmallest * std::pow(kLargest / kSmallest, share));
        total += sizes.back();
    }
    std::vector<std::size_t> scaled;
    for (const double size : sizes)
        scaled.push_back(static_cast<std::size_t>(size * kLibrarySize / total));
    return scaled;
}

std::string RealisticProject(std::uint32_t seed, std::size_t size) {
    constexpr std::size_t plugins = 12;
    std::mt19937 random(seed);
    tools::ProjectWriter project(seed);
    for (std::size_t i = 0; i < plugins; ++i) {
        project.AddFiller(size / plugins);
        project.AddPlugin({.name = "Plug-in " + std::to_string(random() % 200),
                           .isVst = random() % 8 != 0,
                           .state = static_cast<std::uint8_t>(random() % 4 != 0),
                           .isOpaqueBank = random() % 2 == 0});
    }
    return project.Bytes();
}

}  // namespace

const std::string& DataFolder() {
    static const std::string folder = MARLO_BENCH_DATA;
    return folder;
}

const std::vector<std::string>& RealisticLibrary() {
    static const std::vector<std::string> paths = [] {
        std::vector<std::string> made;
        std::uint32_t seed = 0;
        for (const std::size_t size : LibrarySizes()) {
            ++seed;
            made.push_back(WriteOnce("library/" + std::to_string(seed) + ".cpr",
                                     [&] { return RealisticProject(seed, size); }));
        }
        return made;
    }();
    return paths;
}

std::vector<std::string> SmallProjects(std::size_t count) {
    std::string bytes(100, '\0');
    for (int i = 0; i < 20; ++i)
        bytes += tools::PluginBytes({.name = "Plug-in " + std::to_string(i), .chunkSize = 64});
    std::vector<std::string> paths;
    for (std::size_t i = 0; i < count; ++i)
        paths.push_back(WriteOnce("small/" + std::to_string(i) + ".cpr", [&] { return bytes; }));
    return paths;
}

std::string HostileFile(const std::string& name, std::string (*make)(std::size_t size),
                        std::size_t size) {
    return WriteOnce("hostile/" + name + "-" + std::to_string(size) + ".cpr",
                     [&] { return make(size); });
}

}  // namespace marlo::bench
