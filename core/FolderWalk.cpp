#include "core/FolderWalk.h"

#include <system_error>

#include "core/RunTimeError.h"

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

}  // namespace marlo
