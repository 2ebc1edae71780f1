#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/File.h"

namespace marlo {

/// Reads a file line by line. Lines end with CR LF or LF; the last one needs no end.
class LineReader {
  public:
    /// @throws RunTimeError when the file is missing or cannot be opened.
    explicit LineReader(const std::string& path);

    /// Reads the next line, without its end.
    /// @param line the line, which is there until the next one is read.
    /// @return false at the end of the file.
    /// @throws RunTimeError when the disk fails.
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
