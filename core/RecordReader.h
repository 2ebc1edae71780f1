#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/Application.h"
#include "core/LineReader.h"
#include "core/Records.h"

namespace marlo {

/// Reads a result file record by record.
class RecordReader {
  public:
    /// @param relativePath the file, with a "\" in front (see `ApplicationPath`).
    /// @param fieldCount how many fields each record should have.
    /// @throws RunTimeError when the file is missing or cannot be opened.
    RecordReader(const Application& application, std::string_view relativePath,
                 std::int32_t fieldCount);

    /// Reads the next record. One with too few fields is logged as `SplitRecord` does, and has
    /// empty ones in their place.
    /// @return false at the end of the file.
    /// @throws RunTimeError when the disk fails.
    bool Next();

    /// A field of the record, 0-based, which is there until the next one is read.
    std::string_view operator[](std::size_t index) { return fields_[index]; }

  private:
    LineReader file_;
    RecordFields fields_;
};

}  // namespace marlo
