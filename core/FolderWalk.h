#pragma once

#include <optional>
#include <set>

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

}  // namespace marlo
