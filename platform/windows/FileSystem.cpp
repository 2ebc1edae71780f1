#include "platform/FileSystem.h"

#include <array>
#include <memory>
#include <utility>

#include "platform/PathCheck.h"
#include "platform/windows/System.h"
#include "platform/windows/SystemTime.h"
#include "platform/windows/Wide.h"
#include "platform/windows/WindowsError.h"

namespace marlo::platform {

namespace {

struct OpenFolder {
    HANDLE handle = INVALID_HANDLE_VALUE;
    std::wstring path;
};

/// The attributes of what is at `path`. A path that leads nowhere is no error.
std::optional<WIN32_FILE_ATTRIBUTE_DATA> StatusOf(const std::string& path, std::error_code& error) {
    error = CheckPath(path);
    if (error)
        return std::nullopt;
    WIN32_FILE_ATTRIBUTE_DATA status{};
    if (GetFileAttributesExW(WidePath(path).c_str(), GetFileExInfoStandard, &status) != FALSE)
        return status;
    error = LastWindowsError();
    if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory)
        error.clear();
    return std::nullopt;
}

bool IsDirectory(DWORD attributes) {
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsSeparator(char c) {
    return c == '\\' || c == '/';
}

/// Whether an entry of the folder at `folder`, with a separator at its end, leads to another place
/// of the disk. Systems also mark files that are fetched when they are opened, and the places where
/// other volumes are mounted: these lead nowhere else.
bool IsLink(const std::wstring& folder, const WIN32_FIND_DATAW& entry) {
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return false;
    if (entry.dwReserved0 != IO_REPARSE_TAG_MOUNT_POINT)
        return entry.dwReserved0 == IO_REPARSE_TAG_SYMLINK;
    std::array<wchar_t, 64> volume{};  // "\\?\Volume{GUID}\"
    const std::wstring place = folder + static_cast<const wchar_t*>(entry.cFileName) + L'\\';
    return GetVolumeNameForVolumeMountPointW(place.c_str(), volume.data(), volume.size()) == FALSE;
}

/// The path of what an open file or folder is, without links.
std::string RealPathOf(HANDLE handle, std::error_code& error) {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetFinalPathNameByHandleW(
            handle, path.data(), static_cast<DWORD>(path.size()), VOLUME_NAME_DOS);
        if (length == 0) {
            error = LastWindowsError();
            return {};
        }
        const bool isWhole = length < path.size();
        path.resize(length);  // one that is too short gets the length that it should have
        if (isWhole)
            return NarrowText(WithoutLongMark(path));
    }
}

/// Opens a file or folder, which keeps nobody else from it. @return INVALID_HANDLE_VALUE after an
/// error.
HANDLE OpenShared(const std::wstring& path, DWORD access) {
    return CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                       nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

}  // namespace

Folder Folder::Open(const std::string& path, std::error_code& error) {
    error = CheckPath(path);
    if (error)
        return Folder(nullptr);
    auto folder = std::make_unique<OpenFolder>();
    folder->path = WidePath(path);
    folder->handle = OpenShared(folder->path, FILE_LIST_DIRECTORY);
    if (folder->handle == INVALID_HANDLE_VALUE) {
        error = LastWindowsError();
        return Folder(nullptr);
    }
    BY_HANDLE_FILE_INFORMATION status{};
    if (GetFileInformationByHandle(folder->handle, &status) == FALSE)
        error = LastWindowsError();
    else if (!IsDirectory(status.dwFileAttributes))
        error = std::make_error_code(std::errc::not_a_directory);
    return Folder(folder.release());
}

Folder::Folder(Folder&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}

Folder::~Folder() {
    const std::unique_ptr<OpenFolder> folder(static_cast<OpenFolder*>(handle_));
    if (folder)
        CloseHandle(folder->handle);
}

FolderIdentity Folder::Identity(std::error_code& error) const {
    const HANDLE handle = static_cast<OpenFolder*>(handle_)->handle;
    BY_HANDLE_FILE_INFORMATION status{};
    const bool isKnown = GetFileInformationByHandle(handle, &status) != FALSE;
    error = isKnown ? std::error_code() : LastWindowsError();
    FolderIdentity identity{
        .device = status.dwVolumeSerialNumber,
        .number = std::uint64_t{status.nFileIndexHigh} << 32 | status.nFileIndexLow,
        .realPath = {}};
    if (!error && identity.number == 0)
        identity.realPath = RealPathOf(handle, error);
    return identity;
}

FolderEntries Folder::Entries(std::error_code& error) const {
    error.clear();
    FolderEntries entries;
    std::wstring folder = static_cast<OpenFolder*>(handle_)->path;
    if (!folder.ends_with(L'\\') && !folder.ends_with(L'/'))
        folder += L'\\';
    WIN32_FIND_DATAW entry{};
    const HANDLE search = FindFirstFileW((folder + L'*').c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) {
        // The root of a drive has no "." entry, so an empty one has none at all.
        if (GetLastError() != ERROR_FILE_NOT_FOUND)
            error = LastWindowsError();
        return entries;
    }
    do {
        const std::wstring_view name = static_cast<const wchar_t*>(entry.cFileName);
        if (name == L"." || name == L"..")
            continue;
        const bool isLink = IsLink(folder, entry);
        if (IsDirectory(entry.dwFileAttributes))
            entries.folders.push_back({NarrowText(name), isLink});
        else
            entries.files.push_back(
                {NarrowText(name), isLink ? FileKind::Link : FileKind::Regular});
    } while (FindNextFileW(search, &entry) != FALSE);
    if (GetLastError() != ERROR_NO_MORE_FILES)
        error = LastWindowsError();
    FindClose(search);
    return entries;
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (path.empty() || !IsSeparator(path.back()))
        path += '\\';
    return path.append(name);
}

bool IsFile(const std::string& path, std::error_code& error) {
    const auto status = StatusOf(path, error);
    return status && !IsDirectory(status->dwFileAttributes);
}

bool IsFolder(const std::string& path, std::error_code& error) {
    const auto status = StatusOf(path, error);
    return status && IsDirectory(status->dwFileAttributes);
}

std::tm LastModified(const std::string& path, std::error_code& error) {
    const auto status = StatusOf(path, error);
    if (!status || IsDirectory(status->dwFileAttributes)) {
        if (!error)
            error = std::make_error_code(std::errc::no_such_file_or_directory);
        return {};
    }
    SYSTEMTIME world{};
    SYSTEMTIME local{};
    // With the time zone's rules of that date, as file managers show it.
    if (FileTimeToSystemTime(&status->ftLastWriteTime, &world) == FALSE ||
        SystemTimeToTzSpecificLocalTime(nullptr, &world, &local) == FALSE) {
        error = LastWindowsError();
        return {};
    }
    return MomentOf(local);
}

void MakeFolder(const std::string& path, std::error_code& error) {
    error = CheckPath(path);
    if (!error && CreateDirectoryW(WidePath(path).c_str(), nullptr) == FALSE)
        error = LastWindowsError();
}

void CheckWritable(const std::string& folder, std::error_code& error) {
    error = CheckPath(folder);
    if (error)
        return;
    const HANDLE handle = OpenShared(WidePath(folder), FILE_ADD_FILE);
    if (handle == INVALID_HANDLE_VALUE)
        error = LastWindowsError();
    else
        CloseHandle(handle);
}

void RemoveFile(const std::string& path, std::error_code& error) {
    error = CheckPath(path);
    if (!error && DeleteFileW(WidePath(path).c_str()) == FALSE)
        error = LastWindowsError();
}

void MoveIntoPlace(const std::string& from, const std::string& to, std::error_code& error) {
    error = CheckPath(from);
    if (!error)
        error = CheckPath(to);
    if (error || MoveFileExW(WidePath(from).c_str(), WidePath(to).c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE)
        return;
    error = LastWindowsError();
    std::error_code ignored;
    if (IsFolder(to, ignored))
        error = std::make_error_code(std::errc::is_a_directory);
}

std::optional<std::string> ParentPath(const std::string& path) {
    const std::size_t separator = path.rfind('\\');
    if (separator == std::string::npos)
        return std::nullopt;
    return path.substr(0, separator);
}

std::string FullPath(const std::string& path, std::error_code& error) {
    error = CheckPath(path);
    if (error)
        return path;
    const std::wstring wide = WideText(path);
    const DWORD size = GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    if (size != 0)
        full.resize(GetFullPathNameW(wide.c_str(), size, full.data(), nullptr));
    if (full.empty()) {
        error = LastWindowsError();
        return path;
    }
    const bool isRoot = full.size() <= 3;
    if (!isRoot && full.ends_with(L'\\'))
        full.pop_back();
    return NarrowText(full);
}

std::string RealPath(const std::string& path, std::error_code& error) {
    error = CheckPath(path);
    if (error)
        return {};
    const HANDLE handle = OpenShared(WidePath(path), 0);
    if (handle == INVALID_HANDLE_VALUE) {
        error = LastWindowsError();
        return {};
    }
    std::string real = RealPathOf(handle, error);
    CloseHandle(handle);
    return real;
}

std::string ProgramFolder() {
    std::wstring program(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
        if (length == 0)
            return ".";
        if (length < program.size()) {
            program.resize(length);
            break;
        }
        program.resize(2 * program.size());
    }
    return NarrowText(std::wstring_view(program).substr(0, program.rfind(L'\\')));
}

}  // namespace marlo::platform
