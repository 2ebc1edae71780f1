#pragma once

#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "core/Application.h"

namespace marlo {

/// Where a walk goes and what it looks for.
struct FolderWalk {
    std::string start;                    ///< the folder to start in
    bool includeSubfolders = false;       ///< whether to go into the folders below it
    std::vector<std::string_view> types;  ///< of files, exactly as the desktop describes them
};

/// What a walk does with what it meets. What these routines throw ends the walk.
class FolderVisitor {
  public:
    virtual ~FolderVisitor() = default;

    /// Called before a folder is opened. @return false to end the walk.
    virtual bool EnterFolder(const std::string& path) = 0;

    /// A folder below the start cannot be opened; when this returns, it is skipped.
    virtual void CannotOpen(const std::string& path, const std::error_code& error) = 0;

    /// A file of one of the types. Called before the next file is asked about.
    /// @param name the last part of `path`.
    virtual void VisitFile(const std::string& path, const std::string& name) = 0;
};

/// Visits the files of some types in a folder and, if wanted, below it: a folder's own files before
/// its subfolders, both in the order of their names without regard to case. Nothing happens when
/// the start cannot be opened.
///
/// No file is visited twice and no walk is endless, whatever links there are. A link to a file or
/// folder that the walk finds at its own place is skipped, so that every file inside the start is
/// visited by its real path. A link that leads outside is followed, and there, too, nothing that
/// lies inside is visited.
///
/// @return false when the visitor ended the walk.
/// @throws RunTimeError when a folder cannot be read, or a file cannot be asked about.
bool WalkFolder(const Application& application, const FolderWalk& walk, FolderVisitor& visitor);

}  // namespace marlo
