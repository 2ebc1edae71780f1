// Writes a small archive of sample projects, and a folder of plug-in libraries to go with them.
// Usage: marlo-samples FOLDER

#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tools/ProjectWriter.h"

namespace {

using marlo::tools::PluginBytes;
using marlo::tools::PluginSlot;
using marlo::tools::ProjectWriter;

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    if (!file.flush())
        throw std::runtime_error("cannot write " + path.string());
}

std::string Project(std::uint32_t seed, const std::vector<PluginSlot>& slots) {
    ProjectWriter project(seed);
    for (const PluginSlot& slot : slots) {
        project.AddFiller(6000);
        project.AddPlugin(slot);
    }
    project.AddFiller(12000);
    return project.Bytes();
}

const PluginSlot kReverb{.name = "R\xE9verb"};  // in the ANSI code page, as Cubase SX writes it
const PluginSlot kPiano{.name = "Grand Piano One", .chunkSize = 4000};
const PluginSlot kPianoOff{.name = "Grand Piano One", .state = 0, .chunkSize = 4000};
const PluginSlot kDelay{.name = "Tape Delay", .isOpaqueBank = false};
const PluginSlot kDelayOff{.name = "Tape Delay", .state = 0, .isOpaqueBank = false};
const PluginSlot kChorus{.name = "Chorus, Wide"};
const PluginSlot kBass{.name = "Bass Station Mk2", .isOpaqueBank = false, .chunkSize = 9000};
const PluginSlot kStrings{.name = "Strings Ensemble with a Rather Long Name"};
const PluginSlot kEcho{.name = "DX Echo", .isVst = false};
const PluginSlot kGateOff{.name = "DX Gate", .isVst = false, .state = 0};
const PluginSlot kQ{.name = "Q"};

void WriteProjects(const std::filesystem::path& folder) {
    WriteFile(folder / "Sunday Morning.cpr", Project(1, {kReverb, kPiano, kDelayOff, kEcho}));
    WriteFile(folder / "LIVE SET.CPR", Project(2, {kDelayOff, kDelay, kDelayOff, kQ, kGateOff}));
    WriteFile(folder / "empty.cpr", "");
    WriteFile(folder / "Read me.txt", "Not a project.\r\n");
    WriteFile(folder / "Albums" / "First and Last.cpr", Project(3, {kChorus, kBass, kPianoOff}));
    WriteFile(folder / "Albums" / "2004" / "Harbour.cpr", Project(4, {kStrings, kReverb}));
    WriteFile(folder / "Albums" / "2004" / "Harbour (mix 2).cpr",
              Project(5, {kStrings, kReverb, kEcho, kBass}));

    // Two that the years have damaged: one begins in the middle of a bank, one ends in a name.
    WriteFile(folder / "Damaged" / "Lost start.cpr",
              std::string("CcnK\0\0\1\0FBCh", 12) + std::string(500, '\0'));
    const std::string whole = PluginBytes(kPiano);
    WriteFile(folder / "Damaged" / "Lost end.cpr",
              Project(6, {kQ}) + whole.substr(0, whole.find("Piano") + 3));
}

void WriteLibraries(const std::filesystem::path& folder) {
    const std::string library = "MZ sample plug-in library, not a program\r\n";
    for (const char* name : {"Tape Delay.dll", "Grand Piano One.DLL", "Q.dll", "Unused Phaser.dll",
                             "Synths/Bass Station Mk2.dll", "Synths/Unused Organ.dll",
                             "Effects/R\xC3\xA9verb.dll", "Effects/Unused Flanger.dll"})
        WriteFile(folder / name, library);
    WriteFile(folder / "Read me.txt", "Not a plug-in.\r\n");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: marlo-samples FOLDER\n";
        return 2;
    }
    try {
        const std::filesystem::path folder = argv[1];
        WriteProjects(folder / "Projects");
        WriteLibraries(folder / "VstPlugins");
    } catch (const std::exception& failure) {
        std::cerr << "marlo-samples: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
