#include "bench/Data.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>

#include "platform/Machine.h"
#include "tools/ProjectWriter.h"

namespace marlo::bench {

namespace {

constexpr double kSmallest = 80.0 * 1024;
constexpr double kLargest = 8.0 * 1024 * 1024;

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

/// File sizes from the smallest to the largest, spread over the orders of magnitude with more of
/// the smaller ones, so that all together have 400 MB.
std::vector<std::size_t> LibrarySizes() {
    std::vector<std::size_t> sizes;
    for (std::size_t i = 0; i < kLibraryFiles; ++i) {
        const double share = std::pow(static_cast<double>(i) / (kLibraryFiles - 1), 1.5);
        sizes.push_back(
            static_cast<std::size_t>(kSmallest * std::pow(kLargest / kSmallest, share)));
    }
    return sizes;
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

Application BenchApplication() {
    return {DataFolder(),
            platform::SystemClock(),
            platform::SystemDesktop(),
            platform::SystemRegistry(),
            {}};
}

std::vector<std::string> RealisticLibrary(std::size_t count) {
    static const std::vector<std::string> all = [] {
        std::vector<std::string> made;
        std::uint32_t seed = 0;
        for (const std::size_t size : LibrarySizes()) {
            ++seed;
            made.push_back(WriteOnce("archive/" + std::to_string(seed) + ".cpr",
                                     [&] { return RealisticProject(seed, size); }));
        }
        return made;
    }();
    std::vector<std::string> paths;
    for (std::size_t i = 0; i < count; ++i)
        paths.push_back(all.at(i * all.size() / count));
    return paths;
}

std::string LibraryFolder(std::size_t count) {
    const auto folder = std::filesystem::path(DataFolder()) / ("archive-" + std::to_string(count));
    const std::vector<std::string> projects = RealisticLibrary(kLibraryFiles);
    std::filesystem::create_directories(folder);
    for (std::size_t i = 0; i < count; ++i) {
        const auto link = folder / ("Song " + std::to_string(i) + ".cpr");
        if (!std::filesystem::exists(link))
            std::filesystem::create_hard_link(projects[i % projects.size()], link);
    }
    return folder.string();
}

std::vector<std::string> ProjectsOf(const std::string& folder) {
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        paths.push_back(entry.path().string());
    return paths;
}

namespace {

std::string ProjectOf20Plugins(std::size_t chunkSize) {
    std::string bytes(100, '\0');
    for (int i = 0; i < 20; ++i)
        bytes +=
            tools::PluginBytes({.name = "Plug-in " + std::to_string(i), .chunkSize = chunkSize});
    return bytes;
}

std::vector<std::string> WriteProjects(const std::string& folder, std::size_t count,
                                       const std::string& bytes) {
    std::vector<std::string> paths;
    for (std::size_t i = 0; i < count; ++i)
        paths.push_back(
            WriteOnce(folder + "/" + std::to_string(i) + ".cpr", [&] { return bytes; }));
    return paths;
}

}  // namespace

std::vector<std::string> SmallProjects(std::size_t count) {
    return WriteProjects("small", count, ProjectOf20Plugins(64));
}

std::string ProjectFolder(std::size_t count) {
    const std::string folder = "projects-" + std::to_string(count);
    WriteProjects(folder, count, ProjectOf20Plugins(4000));
    return DataFolder() + "/" + folder;
}

std::string HostileFile(const std::string& name, std::string (*make)(std::size_t size),
                        std::size_t size) {
    return WriteOnce("hostile/" + name + "-" + std::to_string(size) + ".cpr",
                     [&] { return make(size); });
}

std::string FileTree(const std::string& name, std::size_t fileCount,
                     const std::vector<std::string>& extensions) {
    constexpr std::size_t filesInFolder = 10;
    constexpr std::size_t foldersInFolder = 40;
    // The last file made tells that the tree is whole.
    for (std::size_t i = 0; i < fileCount; ++i) {
        const std::size_t folder = i / filesInFolder;
        const std::string path = name + "/" + std::to_string(folder / foldersInFolder) + "/" +
                                 std::to_string(folder) + "/Plug-in " + std::to_string(i) +
                                 extensions[i % extensions.size()];
        WriteOnce(path, [] { return ""; });
    }
    return (std::filesystem::path(DataFolder()) / name).string();
}

std::string WinePrefixFolder(std::size_t size, std::size_t effectCount) {
    const std::string name = "prefix-" + std::to_string(size);
    WriteOnce(name + "/system.reg", [&] {
        std::string text = "WINE REGISTRY Version 2\n\n#arch=win64\n\n";
        for (std::size_t i = 0; text.size() < size; ++i) {
            std::array<char, 80> id{};
            std::snprintf(id.data(), id.size(), "{%08zX-1D2E-11CE-9BD9-0000E202599C}", i);
            const std::string key = "[Software\\\\Classes\\\\CLSID\\\\" + std::string(id.data());
            text += key + "] 1795254019\n#time=1dd799c52a5e65e\n@=\"Class " + std::to_string(i) +
                    "\"\n";
            text += i < effectCount ? "\"Merit\"=dword:00200000\n\n" : "\n";
            text += key + "\\\\InProcServer32] 1795254019\n#time=1dd799c52a5e65e\n" +
                    "@=\"C:\\\\windows\\\\system32\\\\quartz.dll\"\n\"ThreadingModel\"=\"Both\"\n" +
                    "\"Data\"=hex:30,70,69,33,00,00,00,00,00,00,00,00,01,00,00,00,00,00,00,00,00,"
                    "00,\\\n" +
                    "  00,00,30,74,79,33,00,00,00,00,60,00,00,00,70,00,00,00\n\n";
        }
        return text;
    });
    return (std::filesystem::path(DataFolder()) / name).string();
}

std::string PluginName(std::size_t number) {
    constexpr std::array makers = {"Tape",  "Analog", "Grand", "Mono", "Velvet", "Quad",
                                   "Lunar", "Iron",   "Phat",  "Zero", "Hyper",  "Old"};
    constexpr std::array kinds = {"Delay",  "Reverb", "Chorus", "Organ",   "Piano",
                                  "Phaser", "Filter", "Bass",   "Limiter", "Strings"};
    constexpr std::size_t scatter = 7919;  // coprime to both, so that neighbours differ
    const std::size_t scattered = number * scatter;
    std::ostringstream name;
    name << makers[scattered % makers.size()] << ' '
         << kinds[scattered / makers.size() % kinds.size()] << ' ' << number;
    return name.str();
}

std::string ResultFilesFolder(std::size_t used, std::size_t installed) {
    const std::string name = "reports-" + std::to_string(used) + "-" + std::to_string(installed);
    // Every second number of the one is in the other, as far as the shorter one goes.
    WriteOnce(name + "/resultfiles/tln.csv", [&] {
        std::ostringstream text;
        for (std::size_t i = 0; i < used; ++i)
            text << '"' << PluginName(i * 2) << "\",\"" << (i % 8 == 0 ? "DirectX" : "VST")
                 << "\",\"" << (i % 4 == 0 ? "Off" : "On") << "\"\r\n";
        return text.str();
    });
    WriteOnce(name + "/resultfiles/installedplugins.csv", [&] {
        std::ostringstream text;
        for (std::size_t i = 0; i < installed; ++i)
            text << "\"VST\",\"" << PluginName(i) << R"(","C:\Program Files\VstPlugins\)"
                 << PluginName(i) << ".dll\"\r\n";
        return text.str();
    });
    return (std::filesystem::path(DataFolder()) / name).string();
}

std::string SearchFolder(std::size_t lines) {
    const std::string name = "search-" + std::to_string(lines);
    constexpr std::size_t linesInProject = 20;
    const std::vector<std::string> projects = SmallProjects(lines / kLinesPerRareUse);
    WriteOnce(name + "/resultfiles/installedplugins.csv",
              [] { return std::string("\"VST\",\"Rare Gem\",\"/vst/Rare Gem.dll\"\r\n"); });
    WriteOnce(name + "/resultfiles/fln.csv", [&] {
        std::ostringstream text;
        for (std::size_t i = 0; i < lines; ++i) {
            const bool isRare = i % kLinesPerRareUse == 7;
            const std::size_t song = i / linesInProject;
            if (isRare)
                text << '"' << projects[i / kLinesPerRareUse] << "\",\"" << kRarePlugin;
            else
                text << "\"/home/anna/Songs/Album " << song / 12 << "/Song " << song << ".cpr\",\""
                     << PluginName(i % 5000);
            text << "\",\"VST    \",\"" << (i % 4 == 0 ? "Off" : "On") << "\"\r\n";
        }
        return text.str();
    });
    return (std::filesystem::path(DataFolder()) / name).string();
}

}  // namespace marlo::bench
