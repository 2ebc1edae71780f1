#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/File.h"

namespace marlo {

/// Writes lines to a file, many at a time. What was written is in the file at the latest when the
/// writer goes out of scope, also after a failure elsewhere. After a failure of its own it writes
/// no more, so that the file never lacks lines in its middle, and fails at every flush.
class LineWriter {
  public:
    /// Writes nowhere until another writer is assigned to it.
    LineWriter() = default;
    /// @param file open for writing.
    explicit LineWriter(platform::File file) noexcept;
    LineWriter(const LineWriter&) = delete;
    LineWriter& operator=(const LineWriter&) = delete;
    LineWriter(LineWriter&& other) = default;
    LineWriter& operator=(LineWriter&& other) = default;
    ~LineWriter();

    /// Writes `text` and the line end CR LF.
    /// @throws RunTimeError when the disk is full or fails.
    void WriteLine(std::string_view text);

    /// How many lines were written.
    std::size_t LineCount() const { return lineCount_; }

    /// Hands to the system what it has not had yet.
    /// @throws RunTimeError when the disk is full or fails.
    void Flush();

    /// The same, and waits until it is on the disk.
    /// @throws RunTimeError when the disk is full or fails.
    void FlushToDisk();

  private:
    void HandOver();

    platform::File file_;
    std::string buffer_;
    std::size_t lineCount_ = 0;
    std::error_code failure_;
};

}  // namespace marlo
