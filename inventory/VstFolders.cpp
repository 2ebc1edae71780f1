#include "inventory/VstFolders.h"

#include <cstdint>
#include <limits>

#include "core/Settings.h"
#include "inventory/ReadRegistry.h"

namespace marlo {

namespace {

constexpr std::int16_t kLastRecord = std::numeric_limits<std::int16_t>::max();

/// Where the registry says that the plug-ins of all hosts are.
std::string SharedVstFolder(const Application& application) {
    std::int32_t keyType = 0;
    const auto path = GetRegistryValue(application, platform::kLocalMachine, "software\\vst",
                                       "VSTPluginsPath", keyType);
    const auto* const text = std::get_if<std::string>(&path);
    return text == nullptr || text->empty() ? "" : application.registry.LocalPath(*text);
}

}  // namespace

std::vector<std::string> ReadVstFolders(const Application& application) {
    std::vector<std::string> folders;
    for (std::int16_t record = setting::kFirstVstFolder; record < kLastRecord; ++record) {
        std::string folder = getSetting(application, record);
        if (folder.empty())
            break;
        folders.push_back(std::move(folder));
    }
    return folders;
}

bool WriteVstFolders(const Application& application, const std::vector<std::string>& folders) {
    bool ok = true;
    for (std::int16_t record = setting::kFirstVstFolder;
         record < kLastRecord && !getSetting(application, record).empty(); ++record)
        ok = WriteSetting(application, record, "") && ok;
    std::int16_t record = setting::kFirstVstFolder;
    for (const std::string& folder : folders)
        ok = WriteSetting(application, record++, folder) && ok;
    return ok;
}

void FillInVstFolder(const Application& application) {
    if (!getSetting(application, setting::kFirstVstFolder).empty())
        return;
    const std::string folder = SharedVstFolder(application);
    if (!folder.empty() && FitsSetting(folder))
        WriteSetting(application, setting::kFirstVstFolder, folder);
}

}  // namespace marlo
