#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/File.h"

namespace marlo {

/// A longer line is no record, and would take all memory.
inline constexpr std::size_t kMaxLineLength = std::size_t{257} * 1024 * 1024;

/// Reads a file line by line. Lines end with CR LF or LF; the last one needs no end.
class LineReader {
  public:
    /// @throws RunTimeError when the file is missing or cannot be opened.
    explicit LineReader(const std::string& path);

    /// Reads the next line, without its end.
    /// @param line the line, which is there until the next one is read.
    /// @return false at the end of the file.
    /// @throws RunTimeError when the disk fails, and "Out of memory" at a line that is longer than
    ///         `kMaxLineLength` by more than what is read at once.
    bool Next(std::string_view& line);

  private:
    bool ReadMore();

    platform::File file_;
    std::uint64_t offset_ = 0;  ///< in the file, of what is read next
    std::string buffer_;
    std::size_t begin_ = 0;  ///< in the buffer, of what was read and is not handed out yet
    std::size_t end_ = 0;
};

}  // namespace marlo
