#pragma once

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <tuple>
#include <vector>

namespace marlo::platform {

// Paths are byte strings as the file system gave them. Every routine that takes one and an `error`
// refuses a path that holds a NUL byte as `errc::invalid_argument`.

/// What tells a folder from every other one, whatever path leads to it.
struct FolderIdentity {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::string realPath;  ///< only where the file system has no numbers; else empty

    bool operator==(const FolderIdentity&) const = default;
    bool operator<(const FolderIdentity& other) const {
        return std::tie(device, number, realPath) <
               std::tie(other.device, other.number, other.realPath);
    }
};

/// What a folder's listing tells of a file, which saves looking at the file itself. A link is not
/// followed: `Link` stands for whatever it leads to.
enum class FileKind { Unknown, Regular, Link };

/// A file in a folder.
struct FileEntry {
    std::string name;
    FileKind kind = FileKind::Unknown;
};

/// A folder in a folder.
struct SubfolderEntry {
    std::string name;
    bool isLink = false;
};

/// What is in a folder, "." and ".." left out, in no particular order.
struct FolderEntries {
    std::vector<FileEntry> files;         ///< whatever is not a folder
    std::vector<SubfolderEntry> folders;  ///< folders, and links to folders
};

/// An open folder; closed when it goes out of scope. Every routine clears `error` or sets it.
class Folder {
  public:
    /// Opens the folder at `path`. After an error the result is not open.
    static Folder Open(const std::string& path, std::error_code& error);

    Folder(Folder&& other) noexcept;
    Folder& operator=(Folder&&) = delete;
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder();

    /// Which folder this is, whatever path or link led to it.
    FolderIdentity Identity(std::error_code& error) const;

    /// Reads the folder's entries from the first one on.
    /// @return those that came before the error, if there is one.
    FolderEntries Entries(std::error_code& error) const;

  private:
    explicit Folder(void* handle) : handle_(handle) {}

    void* handle_;
};

/// `folder` and `name` joined by the platform's separator.
std::string JoinPath(std::string_view folder, std::string_view name);

/// Whether a file that is not a folder exists at `path`. A missing file or path is an answer, no
/// error.
bool IsFile(const std::string& path, std::error_code& error);

/// Whether a folder exists at `path`. A missing folder or path is an answer, no error.
bool IsFolder(const std::string& path, std::error_code& error);

/// The local date and time of the last change of the file at `path`. A folder is no file.
std::tm LastModified(const std::string& path, std::error_code& error);

/// Makes a folder, in one that exists, which nobody but its owner may look into where the system
/// tells users apart. What is there already stays, and is refused as `errc::file_exists`.
void MakeFolder(const std::string& path, std::error_code& error);

/// Finds out whether this user may make files in a folder that exists, without making one.
/// @param error why not; cleared when it is allowed.
void CheckWritable(const std::string& folder, std::error_code& error);

/// Deletes the file at `path`.
void RemoveFile(const std::string& path, std::error_code& error);

/// Gives the file at `from` the path `to`, in one step: whoever looks at `to` sees the old file or
/// the new one. Both paths are on one volume.
void MoveIntoPlace(const std::string& from, const std::string& to, std::error_code& error);

/// What stands in front of the last separator of `path`; nothing when it has none. Paths from a
/// Windows machine have "\" between their names wherever the program runs.
std::optional<std::string> ParentPath(const std::string& path);

/// `path` from the root on, without "." and ".." steps and doubled separators, and without a
/// separator at its end. Links stay as they are. A ".." behind one is resolved as the system does:
/// on Linux it leads out of the folder that the link leads to, on Windows back to the link's own.
/// After an error the path as it was given.
std::string FullPath(const std::string& path, std::error_code& error);

/// The path, from the root on and without links, of the file or folder that `path` leads to. Two
/// paths lead to the same place if their real paths are the same text.
/// @return empty after an error.
std::string RealPath(const std::string& path, std::error_code& error);

/// The folder that holds the running program, without a separator at its end; "." when the system
/// does not tell.
std::string ProgramFolder();

}  // namespace marlo::platform
