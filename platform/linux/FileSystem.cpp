#include "platform/FileSystem.h"

#include <algorithm>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

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

bool IsFolderEntry(int folder, const dirent& entry) {
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_DIR;
    struct stat status {};
    return fstatat(folder, static_cast<const char*>(entry.d_name), &status, 0) == 0 &&
           S_ISDIR(status.st_mode);
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

FileIdentity Folder::Identity(std::error_code& error) const {
    struct stat status {};
    error =
        fstat(dirfd(static_cast<DIR*>(handle_)), &status) == 0 ? std::error_code() : PosixError();
    return {status.st_dev, status.st_ino};
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
        const std::string_view name = static_cast<const char*>(entry->d_name);
        if (name == "." || name == "..")
            continue;
        if (IsFolderEntry(dirfd(handle), *entry))
            entries.folders.emplace_back(name);
        else
            entries.files.push_back({std::string(name), entry->d_type == DT_REG
                                                            ? FileKind::Regular
                                                            : FileKind::Unknown});
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
    std::filesystem::path full = std::filesystem::absolute(path, error);
    if (error)
        return path;
    // A ".." behind a link leads elsewhere than the names in front of it tell.
    const bool hasParentSteps = std::find(full.begin(), full.end(), "..") != full.end();
    full =
        hasParentSteps ? std::filesystem::weakly_canonical(full, error) : full.lexically_normal();
    if (error)
        return path;
    std::string result = full.string();
    if (result.size() > 1 && result.ends_with('/'))
        result.pop_back();
    return result;
}

std::string ProgramFolder() {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? "." : program.parent_path().string();
}

}  // namespace marlo::platform
