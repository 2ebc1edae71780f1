#include "inventory/VstFolders.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "core/Settings.h"
#include "inventory/ReadRegistry.h"

namespace marlo {

namespace {

/// Where the registry says that the plug-ins of all hosts are.
std::string SharedVstFolder(const Application& application) {
    std::int32_t keyType = 0;
    const RegistryValue value = GetRegistryValue(application, platform::kLocalMachine,
                                                 "software\\vst", "VSTPluginsPath", keyType);
    if (keyType == platform::registry_type::kBinary)
        return "";  // bytes are no text
    const std::string path = TextOf(value);
    return path.empty() ? "" : application.registry.LocalPath(path);
}

}  // namespace

void VisitVstFolders(const Application& application,
                     const std::function<bool(const std::string& folder)>& visit) {
    constexpr std::int32_t last = std::numeric_limits<std::int16_t>::max();
    for (std::int32_t record = setting::kFirstVstFolder; record <= last; ++record) {
        const std::string folder = getSetting(application, static_cast<std::int16_t>(record));
        if (folder.empty() || !visit(folder))
            break;
    }
}

std::vector<std::string> ReadVstFolders(const Application& application) {
    std::vector<std::string> folders;
    VisitVstFolders(application, [&](const std::string& folder) {
        folders.push_back(folder);
        return true;
    });
    return folders;
}

bool WriteVstFolders(const Application& application, const std::vector<std::string>& folders) {
    // The records that a longer list leaves are cleared, to the first empty one.
    std::vector<std::string> records = folders;
    records.resize(std::max(folders.size(), ReadVstFolders(application).size()));
    return WriteSettings(application, setting::kFirstVstFolder, records);
}

void FillInVstFolder(const Application& application) {
    if (!getSetting(application, setting::kFirstVstFolder).empty())
        return;
    const std::string folder = SharedVstFolder(application);
    if (!folder.empty())
        WriteSetting(application, setting::kFirstVstFolder, folder);
}

}  // namespace marlo
