#include "platform/File.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "platform/PathCheck.h"
#include "platform/linux/PosixError.h"

namespace marlo::platform {

namespace {

constexpr mode_t kNewFileMode = 0666;

std::error_code CheckRegular(int handle) {
    struct stat status {};
    if (fstat(handle, &status) != 0)
        return PosixError();
    if (S_ISDIR(status.st_mode))
        return std::make_error_code(std::errc::is_a_directory);
    if (!S_ISREG(status.st_mode))
        return std::make_error_code(std::errc::invalid_seek);
    return {};
}

/// Whether a call failed because the file system does not offer what was asked for.
bool IsNotOffered(int failure) {
    return failure == EINVAL || failure == ENOLCK || failure == ENOSYS || failure == EOPNOTSUPP;
}

/// Locks an open file until it is closed, where the file system has locks.
std::error_code Lock(int handle) {
    if (flock(handle, LOCK_EX | LOCK_NB) == 0 || IsNotOffered(errno))
        return {};
    return errno == EWOULDBLOCK ? std::make_error_code(std::errc::device_or_resource_busy)
                                : PosixError();
}

/// Whether the open file is still the one that `path` names.
bool IsStillAt(int handle, const std::string& path) {
    struct stat open {};
    struct stat named {};
    return fstat(handle, &open) == 0 && stat(path.c_str(), &named) == 0 &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

/// Calls `writeSome` with what is left of `bytes` and where that begins, until all is written.
template <class WriteSome>
std::error_code WriteAll(std::string_view bytes, WriteSome writeSome) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t written = writeSome(bytes.substr(done), done);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return PosixError();
        done += static_cast<std::size_t>(written);
    }
    return {};
}

}  // namespace

struct File::Mode {
    int flags;
};

void File::Close() noexcept {
    if (handle_ >= 0)
        close(std::exchange(handle_, -1));
}

File File::Open(const std::string& path, const Mode& mode, std::error_code& error) {
    error = CheckPath(path);
    if (error)
        return {};
    // Without O_NONBLOCK, opening a pipe would wait for its other end.
    File file(open(path.c_str(), mode.flags | O_CLOEXEC | O_NONBLOCK, kNewFileMode));
    error = file.handle_ < 0 ? PosixError() : CheckRegular(file.handle_);
    return error ? File() : std::move(file);
}

File File::OpenForReading(const std::string& path, std::error_code& error) {
    return Open(path, {O_RDONLY}, error);
}

File File::OpenForUpdating(const std::string& path, std::error_code& error) {
    return Open(path, {O_RDWR | O_CREAT}, error);
}

File File::OpenForAppending(const std::string& path, std::error_code& error) {
    return Open(path, {O_WRONLY | O_CREAT | O_APPEND}, error);
}

File File::OpenExclusively(const std::string& path, std::error_code& error) {
    for (;;) {
        File file = CreateNew(path, error);
        const bool isNew = !error;
        if (error == std::errc::file_exists) {
            file = Open(path, {O_WRONLY | O_NOFOLLOW}, error);
            if (error == std::errc::no_such_file_or_directory)
                continue;  // its owner has moved it away
        }
        if (error)
            return {};
        error = Lock(file.handle_);
        // Between opening and locking, the owner before us may have moved the file away.
        if (!error && !IsStillAt(file.handle_, path))
            continue;
        if (!error && ftruncate(file.handle_, 0) != 0)
            error = PosixError();
        if (!error)
            return file;
        // What was there before, or is locked by now, is another program's.
        if (isNew && error != std::errc::device_or_resource_busy)
            unlink(path.c_str());
        return {};
    }
}

std::uint64_t File::Size(std::error_code& error) const {
    struct stat status {};
    error = fstat(handle_, &status) == 0 ? std::error_code() : PosixError();
    return error ? 0 : static_cast<std::uint64_t>(status.st_size);
}

File File::CreateNew(const std::string& path, std::error_code& error) {
    return Open(path, {O_WRONLY | O_CREAT | O_EXCL}, error);
}

std::size_t File::ReadAt(std::uint64_t offset, std::span<unsigned char> buffer,
                         std::error_code& error) const {
    error.clear();
    std::size_t done = 0;
    while (done < buffer.size()) {
        const ssize_t count = pread(handle_, buffer.data() + done, buffer.size() - done,
                                    static_cast<off_t>(offset + done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            error = PosixError();
        if (count <= 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

// NOLINTBEGIN(readability-make-member-function-const): writing changes the file.

void File::WriteAt(std::uint64_t offset, std::string_view bytes, std::error_code& error) {
    error = WriteAll(bytes, [&](std::string_view rest, std::size_t done) {
        return pwrite(handle_, rest.data(), rest.size(), static_cast<off_t>(offset + done));
    });
}

void File::Write(std::string_view bytes, std::error_code& error) {
    error = WriteAll(bytes, [&](std::string_view rest, std::size_t /*done*/) {
        return write(handle_, rest.data(), rest.size());
    });
}

void File::Flush(std::error_code& error) {
    error = fsync(handle_) == 0 || IsNotOffered(errno) ? std::error_code() : PosixError();
}

// NOLINTEND(readability-make-member-function-const)

}  // namespace marlo::platform
