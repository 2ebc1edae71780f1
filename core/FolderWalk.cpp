#include "core/FolderWalk.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "core/RunTimeError.h"
#include "core/Text.h"
#include "platform/FileSystem.h"

namespace marlo {

namespace {

using platform::FileEntry;
using platform::FileKind;
using platform::SubfolderEntry;

/// A folder on the way of a walk.
struct Place {
    std::string path;
    std::string outsidePath;  ///< its real path if it lies outside the start; else empty
};

class Walker {
  public:
    Walker(const Application& application, const FolderWalk& walk, FolderVisitor& visitor)
        : application_(application), walk_(walk), visitor_(visitor) {}

    bool Start() {
        if (!visitor_.EnterFolder(walk_.start))
            return false;
        std::error_code error;
        auto folder = platform::Folder::Open(walk_.start, error);
        if (error)
            return true;
        start_ = platform::RealPath(walk_.start, error);
        ThrowOn(error);
        startPrefix_ = platform::JoinPath(start_, "");
        return Walk({.path = walk_.start, .outsidePath = {}}, std::move(folder));
    }

  private:
    bool Enter(const Place& place) {
        if (!visitor_.EnterFolder(place.path))
            return false;
        std::error_code error;
        auto folder = platform::Folder::Open(place.path, error);
        if (!error)
            return Walk(place, std::move(folder));
        visitor_.CannotOpen(place.path, error);
        return true;
    }

    bool Walk(const Place& place, platform::Folder folder) {
        auto entries = ReadOnce(std::move(folder));
        if (!entries)
            return true;
        VisitFiles(place, std::move(entries->files));
        return !walk_.includeSubfolders || EnterSubfolders(place, std::move(entries->folders));
    }

    /// Reads a folder's entries and closes it: a walk down a deep tree would otherwise keep a
    /// folder open for each level.
    /// @return nothing for a folder that was read before.
    // NOLINTNEXTLINE(performance-unnecessary-value-param): taken over, so that it is closed.
    std::optional<platform::FolderEntries> ReadOnce(platform::Folder folder) {
        std::error_code error;
        const bool isNew = visited_.insert(folder.Identity(error)).second;
        ThrowOn(error);
        if (!isNew)
            return std::nullopt;
        auto entries = folder.Entries(error);
        ThrowOn(error);
        return entries;
    }

    void VisitFiles(const Place& place, std::vector<FileEntry> files) {
        SortIgnoringCase(files, &FileEntry::name);
        for (const FileEntry& file : files) {
            const std::string path = platform::JoinPath(place.path, file.name);
            if (HasType(path, file.kind) && !IsVisitedElsewhere(place, file, path))
                visitor_.VisitFile(path, file.name);
        }
    }

    bool EnterSubfolders(const Place& place, std::vector<SubfolderEntry> folders) {
        SortIgnoringCase(folders, &SubfolderEntry::name);
        return std::ranges::all_of(
            folders, [&](const SubfolderEntry& folder) { return EnterSubfolder(place, folder); });
    }

    bool EnterSubfolder(const Place& place, const SubfolderEntry& folder) {
        Place subfolder{.path = platform::JoinPath(place.path, folder.name), .outsidePath = {}};
        std::error_code error;
        if (folder.isLink)
            subfolder.outsidePath = platform::RealPath(subfolder.path, error);
        else if (!place.outsidePath.empty())
            subfolder.outsidePath = platform::JoinPath(place.outsidePath, folder.name);
        if (error)
            visitor_.CannotOpen(subfolder.path, error);
        const bool isSkipped = error || IsInside(subfolder.outsidePath);
        return isSkipped || Enter(subfolder);
    }

    bool HasType(const std::string& path, FileKind kind) const {
        std::error_code error;
        const std::string type = application_.desktop.FileTypeDescription(path, kind, error);
        ThrowOn(error);
        return std::ranges::find(walk_.types, type) != walk_.types.end();
    }

    /// Whether the walk comes upon a file, or what a link leads to, at another place.
    bool IsVisitedElsewhere(const Place& place, const FileEntry& file, const std::string& path) {
        const bool isLink = file.kind == FileKind::Link;
        if (!isLink && place.outsidePath.empty())
            return false;
        std::error_code error;
        const std::string realPath = isLink ? platform::RealPath(path, error)
                                            : platform::JoinPath(place.outsidePath, file.name);
        ThrowOn(error);
        // A link may have the name of a project while what it leads to has not.
        if (IsWalked(realPath) && HasType(realPath, FileKind::Unknown))
            return true;
        return !linkedFiles_.insert(realPath).second;
    }

    /// Whether a folder is the start or lies below it. @param realPath empty for no.
    bool IsInside(const std::string& realPath) const {
        return realPath == start_ || realPath.starts_with(startPrefix_);
    }

    /// Whether a file lies in a folder that the walk enters without following a link.
    bool IsWalked(const std::string& realPath) const {
        if (!realPath.starts_with(startPrefix_))
            return false;
        const bool isInStart = realPath.rfind(startPrefix_.back()) == startPrefix_.size() - 1;
        return isInStart || walk_.includeSubfolders;
    }

    const Application& application_;
    const FolderWalk& walk_;
    FolderVisitor& visitor_;
    std::string start_;        ///< the real path of the start
    std::string startPrefix_;  ///< the same with a separator at its end
    std::set<platform::FolderIdentity> visited_;
    std::set<std::string>
        linkedFiles_;  ///< the real paths of files that were visited through links
};

}  // namespace

bool WalkFolder(const Application& application, const FolderWalk& walk, FolderVisitor& visitor) {
    return Walker(application, walk, visitor).Start();
}

}  // namespace marlo
