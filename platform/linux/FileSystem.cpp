#include "platform/FileSystem.h"

#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "platform/PathCheck.h"
#include "platform/linux/PosixError.h"

namespace marlo::platform {

namespace {

/// Whether the status of `path` could be read. A path that leads nowhere is no error.
bool ReadStatus(const std::string& path, struct stat& status, std::error_code& error) {
    error = CheckPath(path);
    if (error)
        return false;
    if (stat(path.c_str(), &status) == 0)
        return true;
    if (errno != ENOENT && errno != ENOTDIR)
        error = PosixError();
    return false;
}

/// The type of an entry of an open folder, in the terms of its listing. Some file systems do not
/// list it.
unsigned char TypeOf(int folder, const dirent& entry) {
    struct stat status {};
    if (entry.d_type == DT_UNKNOWN &&
        fstatat(folder, static_cast<const char*>(entry.d_name), &status, AT_SYMLINK_NOFOLLOW) == 0)
        return IFTODT(status.st_mode);
    return entry.d_type;
}

/// Whether a link in an open folder leads to a folder.
bool LeadsToFolder(int folder, const char* link) {
    struct stat status {};
    return fstatat(folder, link, &status, 0) == 0 && S_ISDIR(status.st_mode);
}

FileKind KindOf(unsigned char type) {
    if (type == DT_LNK)
        return FileKind::Link;
    return type == DT_REG ? FileKind::Regular : FileKind::Unknown;
}

/// Where ".." leads from the folder at `path`.
std::filesystem::path ParentFolder(const std::filesystem::path& path, std::error_code& error) {
    const bool isLink = std::filesystem::is_symlink(path, error);
    error.clear();  // what is not there is no link
    return isLink ? std::filesystem::canonical(path, error).parent_path() : path.parent_path();
}

}  // namespace

Folder Folder::Open(const std::string& path, std::error_code& error) {
    error = CheckPath(path);
    if (error)
        return Folder(nullptr);
    DIR* const handle = opendir(path.c_str());
    if (handle == nullptr)
        error = PosixError();
    return Folder(handle);
}

Folder::Folder(Folder&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}

Folder::~Folder() {
    if (handle_ != nullptr)
        closedir(static_cast<DIR*>(handle_));
}

FolderIdentity Folder::Identity(std::error_code& error) const {
    struct stat status {};
    error =
        fstat(dirfd(static_cast<DIR*>(handle_)), &status) == 0 ? std::error_code() : PosixError();
    return {.device = status.st_dev, .number = status.st_ino, .realPath = {}};
}

FolderEntries Folder::Entries(std::error_code& error) const {
    auto* const handle = static_cast<DIR*>(handle_);
    FolderEntries entries;
    error.clear();
    rewinddir(handle);
    for (;;) {
        errno = 0;
        const dirent* const entry = readdir(handle);
        if (entry == nullptr) {
            if (errno != 0)
                error = PosixError();
            return entries;
        }
        const char* const name = static_cast<const char*>(entry->d_name);
        if (std::string_view(name) == "." || std::string_view(name) == "..")
            continue;
        const unsigned char type = TypeOf(dirfd(handle), *entry);
        const bool isLink = type == DT_LNK;
        if (type == DT_DIR || (isLink && LeadsToFolder(dirfd(handle), name)))
            entries.folders.push_back({name, isLink});
        else
            entries.files.push_back({name, KindOf(type)});
    }
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.ends_with('/'))
        path += '/';
    return path.append(name);
}

bool IsFile(const std::string& path, std::error_code& error) {
    struct stat status {};
    return ReadStatus(path, status, error) && !S_ISDIR(status.st_mode);
}

bool IsFolder(const std::string& path, std::error_code& error) {
    struct stat status {};
    return ReadStatus(path, status, error) && S_ISDIR(status.st_mode);
}

std::tm LastModified(const std::string& path, std::error_code& error) {
    struct stat status {};
    std::tm moment{};
    const bool isThere = ReadStatus(path, status, error) && !S_ISDIR(status.st_mode);
    if (!isThere && !error)
        error = std::make_error_code(std::errc::no_such_file_or_directory);
    if (isThere && localtime_r(&status.st_mtime, &moment) == nullptr)
        error = PosixError();
    return moment;
}

void MakeFolder(const std::string& path, std::error_code& error) {
    error = CheckPath(path);
    if (!error && mkdir(path.c_str(), S_IRWXU) != 0)
        error = PosixError();
}

void CheckWritable(const std::string& folder, std::error_code& error) {
    error = CheckPath(folder);
    if (!error && faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) != 0)
        error = PosixError();
}

void RemoveFile(const std::string& path, std::error_code& error) {
    error = CheckPath(path);
    if (!error && unlink(path.c_str()) != 0)
        error = PosixError();
}

void MoveIntoPlace(const std::string& from, const std::string& to, std::error_code& error) {
    error = CheckPath(from);
    if (!error)
        error = CheckPath(to);
    if (!error && rename(from.c_str(), to.c_str()) != 0)
        error = PosixError();
}

std::optional<std::string> ParentPath(const std::string& path) {
    // In a path from the root on, a "\\" is a character like any other.
    const std::size_t separator = path.find_last_of(path.starts_with('/') ? "/" : "/\\");
    if (separator == std::string::npos)
        return std::nullopt;
    return path.substr(0, separator == 0 && path.front() == '/' ? 1 : separator);
}

std::string FullPath(const std::string& path, std::error_code& error) {
    error = CheckPath(path);
    if (error)
        return path;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    std::filesystem::path full;
    for (const std::filesystem::path& step : absolute) {
        if (error)
            return path;
        if (step == "..")
            full = ParentFolder(full, error);
        else if (step != ".")
            full /= step;
    }
    if (error)
        return path;
    std::string result = full.string();
    if (result.size() > 1 && result.ends_with('/'))
        result.pop_back();
    return result;
}

std::string RealPath(const std::string& path, std::error_code& error) {
    error = CheckPath(path);
    return error ? std::string() : std::filesystem::canonical(path, error).string();
}

std::string ProgramFolder() {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? "." : program.parent_path().string();
}

}  // namespace marlo::platform
