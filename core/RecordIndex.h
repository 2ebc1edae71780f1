#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Application.h"
#include "core/RecordReader.h"
#include "core/TextTable.h"

namespace marlo {

/// The three-field records of a result file, looked up by a key as if the file were searched from
/// its start each time. It is opened at the first question and read once, only as far as the
/// questions need.
class RecordIndex {
  public:
    /// Makes the key of the record that was read last.
    /// @return false for a record that is not to be found.
    using MakeKey = std::function<bool(RecordReader& record, std::string& key)>;

    /// @param relativePath the file, with a "\" in front (see `ApplicationPath`).
    RecordIndex(const Application& application, std::string relativePath, MakeKey makeKey);

    /// Looks for the first record with that key.
    /// @return its last field, which stays where it is; nothing when there is no such record.
    /// @throws RunTimeError when the file is missing or cannot be read. The next question tries
    ///         again.
    std::optional<std::string_view> Find(std::string_view key);

  private:
    bool AddRecord();

    const Application& application_;
    std::string relativePath_;
    MakeKey makeKey_;
    std::optional<RecordReader> file_;
    bool hasRecord_ = false;   ///< the record that was read last is not in the table yet
    bool isComplete_ = false;  ///< the whole file was read
    TextTable keys_;
    std::vector<std::string_view> lastFields_;  ///< by the key's number
    std::string key_;
};

}  // namespace marlo
