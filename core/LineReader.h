#pragma once

#include <cstdint>
#include <string>

#include "platform/File.h"

namespace marlo {

/// Reads a file line by line. Lines end with CR LF or LF; the last one needs no end.
class LineReader {
  public:
    /// @throws RunTimeError when the file is missing or cannot be opened.
    explicit LineReader(const std::string& path);

    /// Reads the next line, without its end.
    /// @return false at the end of the file.
    /// @throws RunTimeError when the disk fails.
    bool Next(std::string& line);

  private:
    bool ReadMore();

    platform::File file_;
    std::uint64_t offset_ = 0;
    std::string buffer_;
    std::size_t position_ = 0;  ///< in the buffer
};

}  // namespace marlo
