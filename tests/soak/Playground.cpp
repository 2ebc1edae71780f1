#include "tests/soak/Playground.h"

#include <cstdint>
#include <filesystem>

#include "core/Settings.h"
#include "tests/support/System.h"
#include "tools/ProjectWriter.h"

namespace marlo::soak {

namespace {

constexpr int kSongs = 30;
constexpr std::uintmax_t kSongSize = std::uintmax_t{1} << 28;
constexpr int kPlugins = 300;
constexpr int kPluginFolders = 2000;

std::string Plugin(int index) {
    return "Plug-in " + std::to_string(index);
}

}  // namespace

Playground::Playground() {
    folder_.MakeFolder("app");
    for (const char* variable : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        test::SetVariable(variable, folder_.MakeFolder("home"));
    std::filesystem::current_path(folder_.MakeFolder("home"));
    std::filesystem::copy(MARLO_ICONS, test::PathOf(folder_.Path("app/icons")),
                          std::filesystem::copy_options::recursive);
    folder_.Write("programs/sheets", "");
    for (int i = 0; i < kSongs; ++i)
        std::filesystem::resize_file(
            folder_.Write("songs/" + std::to_string(i) + ".cpr",
                          std::string(100, '\0') + tools::PluginBytes({.name = Plugin(i)})),
            kSongSize);
    folder_.Write("songs/broken.cpr", "CcnK....FBCh" + std::string(100, '\0'));
    for (int i = 0; i < kPluginFolders; ++i)
        folder_.MakeFolder("vst/" + std::to_string(i));
    for (int i = 0; i < kPlugins; ++i)
        folder_.Write("vst/" + std::to_string(i) + "/" + Plugin(i) + ".dll", "");
    Freshen();
}

void Playground::Freshen() const {
    WriteSetting(application_, setting::kLastFolder, folder_.Path("songs"));
    WriteSetting(application_, setting::kCsvProgram, folder_.Path("programs/sheets"));
    WriteSetting(application_, setting::kFirstVstFolder, folder_.Path("vst"));
    WriteResultFiles();
}

void Playground::WriteResultFiles() const {
    std::string uses;
    std::string used;
    std::string installed;
    for (int i = 0; i < kPlugins; ++i) {
        const std::string kind = "\"" + Plugin(i) + "\",\"VST    \",\"On\"\r\n";
        uses.append("\"").append(folder_.Path("songs/" + std::to_string(i % kSongs) + ".cpr"));
        uses.append("\",").append(kind);
        used += kind;
        installed.append("\"VST\",\"").append(Plugin(i * 2)).append("\",\"/vst/p.dll\"\r\n");
    }
    folder_.Write("app/resultfiles/results.csv", uses);
    folder_.Write("app/resultfiles/fln.csv", uses);
    folder_.Write("app/resultfiles/tln.csv", used);
    folder_.Write("app/resultfiles/installedplugins.csv", installed);
}

bool Playground::Contains(const std::string& path) const {
    return path.starts_with(folder_.Path());
}

std::string Playground::Log() const {
    const std::string name = "app/resultfiles/errorlog.txt";
    return folder_.Exists(name) ? folder_.Read(name) : "";
}

}  // namespace marlo::soak
