// Writes a small archive of sample projects, and to go with them a folder of plug-in libraries and
// a Wine prefix in which two effects are registered. Usage: marlo-samples FOLDER

#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tools/FilterWriter.h"
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

std::string HexList(const std::vector<unsigned char>& bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const unsigned char byte : bytes) {
        if (!text.empty())
            text += ',';
        text += digits[byte / 16U];
        text += digits[byte % 16U];
    }
    return text;
}

void WriteWinePrefix(const std::filesystem::path& folder) {
    const std::string classes = "[Software\\\\Classes\\\\CLSID\\\\";
    WriteFile(folder / "system.reg",
              "WINE REGISTRY Version 2\n;; All keys relative to REGISTRY\\\\Machine\n\n"
              "#arch=win32\n\n" +
                  classes + "{5A3B1C00-0000-0000-0000-000000000001}] 1163560222\n" +
                  "@=\"DX Echo\"\n\"Merit\"=dword:00200000\n\n" + classes +
                  "{083863F1-70DE-11D0-BD40-00A0C911CE86}\\\\Instance\\\\" +
                  "{5A3B1C00-0000-0000-0000-000000000002}] 1163560222\n" +
                  "\"FilterData\"=hex:" + HexList(marlo::tools::EffectFilterData()) +
                  "\n\"FriendlyName\"=\"Unused Vocoder\"\n");
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
        WriteWinePrefix(folder / "WinePrefix");
    } catch (const std::exception& failure) {
        std::cerr << "marlo-samples: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
