#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace marlo::platform {

/// An open regular file; closed when it goes out of scope.
///
/// Paths are byte strings as the file system gave them. A path that holds a NUL byte is refused
/// as `errc::invalid_argument`, a folder as `errc::is_a_directory`, anything else that is not a
/// regular file as `errc::invalid_seek`. Every routine clears `error` or sets it; after an error
/// from an opening routine the result is not open.
class File {
  public:
    File() = default;
    File(File&& other) noexcept;
    File& operator=(File&& other) noexcept;
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File();

    /// Opens an existing file for reading.
    static File OpenForReading(const std::string& path, std::error_code& error);

    /// Opens a file for reading and writing at any place; creates it empty when it is missing.
    static File OpenForUpdating(const std::string& path, std::error_code& error);

    /// Opens a file so that whatever is written goes to its end; creates it when it is missing.
    static File OpenForAppending(const std::string& path, std::error_code& error);

    /// Opens an empty file that nobody else may open this way until it is closed, or this program
    /// ends in whatever way; on a file system without locks, nobody is kept out. What an earlier
    /// owner left in it is dropped. A link is not followed. While another program has it open so,
    /// this fails with `errc::device_or_resource_busy`.
    static File OpenExclusively(const std::string& path, std::error_code& error);

    /// Creates a file for writing, and nothing else: what is there already stays, and is refused as
    /// `errc::file_exists`, a link, too.
    static File CreateNew(const std::string& path, std::error_code& error);

    /// The file's size in bytes.
    std::uint64_t Size(std::error_code& error) const;

    /// Reads into `buffer` from byte `offset` (0-based) until it is full or the file ends.
    /// @return the number of bytes read; fewer than `buffer` holds only at the end of the file or
    ///         on an error.
    std::size_t ReadAt(std::uint64_t offset, std::span<unsigned char> buffer,
                       std::error_code& error) const;

    /// Writes all of `bytes` at byte `offset` (0-based). Bytes skipped past the end become zero.
    void WriteAt(std::uint64_t offset, std::string_view bytes, std::error_code& error);

    /// Writes all of `bytes` after what was written before; for a file that was opened for
    /// appending, at its end.
    void Write(std::string_view bytes, std::error_code& error);

    /// Waits until everything written is on the disk, where the file system offers that.
    void Flush(std::error_code& error);

  private:
    struct Mode;  ///< how a file is opened, in the system's terms

    explicit File(int handle) : handle_(handle) {}
    static File Open(const std::string& path, const Mode& mode, std::error_code& error);
    void Close() noexcept;

    int handle_ = -1;
};

}  // namespace marlo::platform
