#include "core/FolderWalk.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "core/RunTimeError.h"
#include "core/Text.h"

namespace marlo {

// NOLINTNEXTLINE(performance-unnecessary-value-param): taken over, so that it is closed at the end.
std::optional<platform::FolderEntries> VisitedFolders::ReadOnce(platform::Folder folder) {
    std::error_code error;
    const bool isNew = visited_.insert(folder.Identity(error)).second;
    ThrowOn(error);
    if (!isNew)
        return std::nullopt;
    auto entries = folder.Entries(error);
    ThrowOn(error);
    return entries;
}

std::vector<std::string> FilesOfTypes(const Application& application, const std::string& folder,
                                      std::vector<platform::FileEntry> files,
                                      std::initializer_list<std::string_view> types) {
    std::vector<std::string> names;
    for (platform::FileEntry& file : files) {
        std::error_code error;
        const std::string type = application.desktop.FileTypeDescription(
            platform::JoinPath(folder, file.name), file.kind, error);
        ThrowOn(error);
        if (std::find(types.begin(), types.end(), type) != types.end())
            names.push_back(std::move(file.name));
    }
    SortIgnoringCase(names);
    return names;
}

}  // namespace marlo
