#pragma once

#include <initializer_list>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/Application.h"
#include "platform/FileSystem.h"

namespace marlo {

/// The folders that a walk through a tree has been in, so that it goes into none of them twice,
/// whatever links lead to it.
class VisitedFolders {
  public:
    /// Reads a folder's entries, and closes it: a walk down a deep tree would otherwise keep a
    /// folder open for each level.
    /// @return nothing for a folder that was read before.
    /// @throws RunTimeError when the folder cannot be read.
    std::optional<platform::FolderEntries> ReadOnce(platform::Folder folder);

  private:
    std::set<platform::FileIdentity> visited_;
};

/// The names of those files in `folder` whose type, as the desktop describes it, is one of `types`,
/// exactly; in their order without regard to case.
/// @throws RunTimeError when a file cannot be asked about.
std::vector<std::string> FilesOfTypes(const Application& application, const std::string& folder,
                                      std::vector<platform::FileEntry> files,
                                      std::initializer_list<std::string_view> types);

}  // namespace marlo
