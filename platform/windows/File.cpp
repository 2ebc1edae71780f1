#include "platform/File.h"

#include <algorithm>
#include <fcntl.h>
#include <io.h>
#include <utility>

#include "platform/PathCheck.h"
#include "platform/windows/System.h"
#include "platform/windows/Wide.h"
#include "platform/windows/WindowsError.h"

namespace marlo::platform {

namespace {

// What one call of the system may be asked for.
constexpr std::size_t kMostBytes = std::size_t{1} << 30;

HANDLE HandleOf(int descriptor) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

/// Moves the file's own position. Telling the position with each call instead would take longer:
/// it makes the system report the call to whoever might wait for it.
bool MoveTo(int descriptor, std::uint64_t offset) {
    LARGE_INTEGER position{};
    position.QuadPart = static_cast<LONGLONG>(offset);
    return SetFilePointerEx(HandleOf(descriptor), position, nullptr, FILE_BEGIN) != FALSE;
}

DWORD PartOf(std::size_t size) {
    return static_cast<DWORD>(std::min(size, kMostBytes));
}

/// Writes all of `bytes` from the file's own position on.
std::error_code WriteAll(int descriptor, std::string_view bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        DWORD written = 0;
        if (WriteFile(HandleOf(descriptor), bytes.data() + done, PartOf(bytes.size() - done),
                      &written, nullptr) == FALSE)
            return LastWindowsError();
        done += written;
    }
    return {};
}

/// What is at `path`, which could not be opened as a file.
std::error_code WhyNot(const std::wstring& path, std::error_code failure) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    const bool isFolder =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return isFolder ? std::make_error_code(std::errc::is_a_directory) : failure;
}

}  // namespace

struct File::Mode {
    DWORD access;
    DWORD sharing;
    DWORD disposition;
    DWORD flags = FILE_ATTRIBUTE_NORMAL;
};

void File::Close() noexcept {
    if (handle_ >= 0)
        _close(std::exchange(handle_, -1));
}

File File::Open(const std::string& path, const Mode& mode, std::error_code& error) {
    error = CheckPath(path);
    if (error)
        return {};
    const std::wstring wide = WidePath(path);
    const HANDLE handle = CreateFileW(wide.c_str(), mode.access, mode.sharing, nullptr,
                                      mode.disposition, mode.flags, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        error = WhyNot(wide, LastWindowsError());
        return {};
    }
    if (GetFileType(handle) != FILE_TYPE_DISK) {
        CloseHandle(handle);
        error = std::make_error_code(std::errc::invalid_seek);
        return {};
    }
    const int descriptor = _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_BINARY);
    if (descriptor < 0) {
        CloseHandle(handle);
        error = std::make_error_code(std::errc::too_many_files_open);
        return {};
    }
    error.clear();
    return File(descriptor);
}

File File::OpenForReading(const std::string& path, std::error_code& error) {
    return Open(
        path, {GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING},
        error);
}

File File::OpenForUpdating(const std::string& path, std::error_code& error) {
    return Open(path,
                {GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_ALWAYS},
                error);
}

File File::OpenForAppending(const std::string& path, std::error_code& error) {
    // Without the right to write anywhere else, the system itself goes to the end each time.
    return Open(path,
                {FILE_APPEND_DATA | SYNCHRONIZE, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_ALWAYS},
                error);
}

File File::OpenExclusively(const std::string& path, std::error_code& error) {
    // Readers and the move into place may share it; other writers may not.
    File file = Open(path,
                     {GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, OPEN_ALWAYS,
                      FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT},
                     error);
    if (error)
        return {};
    const HANDLE handle = HandleOf(file.handle_);
    BY_HANDLE_FILE_INFORMATION status{};
    if (GetFileInformationByHandle(handle, &status) == FALSE) {
        error = LastWindowsError();
        return {};
    }
    if ((status.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
        return {};
    }
    if (SetEndOfFile(handle) == FALSE) {
        error = LastWindowsError();
        return {};
    }
    return file;
}

std::uint64_t File::Size(std::error_code& error) const {
    LARGE_INTEGER size{};
    const bool isKnown = GetFileSizeEx(HandleOf(handle_), &size) != FALSE;
    error = isKnown ? std::error_code() : LastWindowsError();
    return static_cast<std::uint64_t>(size.QuadPart);
}

File File::CreateNew(const std::string& path, std::error_code& error) {
    File file = Open(path, {GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, CREATE_NEW}, error);
    if (error == std::errc::is_a_directory)
        error = std::make_error_code(std::errc::file_exists);
    return file;
}

std::size_t File::ReadAt(std::uint64_t offset, std::span<unsigned char> buffer,
                         std::error_code& error) const {
    error.clear();
    std::size_t done = 0;
    bool isGood = MoveTo(handle_, offset);
    while (isGood && done < buffer.size()) {
        DWORD count = 0;
        isGood = ReadFile(HandleOf(handle_), buffer.data() + done, PartOf(buffer.size() - done),
                          &count, nullptr) != FALSE;
        if (count == 0)
            break;
        done += count;
    }
    if (!isGood)
        error = LastWindowsError();
    return done;
}

// NOLINTBEGIN(readability-make-member-function-const): writing changes the file.

void File::WriteAt(std::uint64_t offset, std::string_view bytes, std::error_code& error) {
    error = MoveTo(handle_, offset) ? WriteAll(handle_, bytes) : LastWindowsError();
}

void File::Write(std::string_view bytes, std::error_code& error) {
    error = WriteAll(handle_, bytes);
}

void File::Flush(std::error_code& error) {
    error = FlushFileBuffers(HandleOf(handle_)) != FALSE ? std::error_code() : LastWindowsError();
}

// NOLINTEND(readability-make-member-function-const)

}  // namespace marlo::platform
