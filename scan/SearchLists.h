#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/TextArena.h"
#include "core/TextTable.h"

namespace marlo {

/// A list of texts with indexes from 1 to `UpperBound()`.
class TextList {
  public:
    std::size_t UpperBound() const { return texts_.size(); }
    /// @throws RunTimeError "Subscript out of range".
    std::string_view operator[](std::size_t index) const;
    auto begin() const { return texts_.begin(); }
    auto end() const { return texts_.end(); }

    /// Adds a copy of `text`.
    void Append(std::string_view text);

  private:
    TextArena arena_;
    std::vector<std::string_view> texts_;
};

inline constexpr std::string_view kOn = "On";
inline constexpr std::string_view kOff = "Off";

/// A key record, or the name and type of a plug-in, with a state.
struct PluginState {
    std::string_view key;
    std::string_view state;
};

/// The line of a result file: the key, a comma and the state in double quotes.
std::string RecordOf(const PluginState& plugin);

/// Distinct keys in the order of their first appearance, each with one merged state: "On" once any
/// of its uses was on, "Off" before. A key is found in constant time.
class MergedStates {
  public:
    /// Adds a copy of `key` with `state`, or merges the state into the entry that has the key.
    /// @param beforeAdding called before a new key is added; may throw to prevent it.
    /// @return the entry, whose texts live as long as the list.
    PluginState Merge(
        std::string_view key, std::string_view state,
        const std::function<void()>& beforeAdding = [] {});

    std::size_t UpperBound() const { return entries_.size(); }
    /// @throws RunTimeError "Subscript out of range".
    const PluginState& operator[](std::size_t index) const;
    auto begin() const { return entries_.begin(); }
    auto end() const { return entries_.end(); }

  private:
    TextTable keys_;
    std::vector<PluginState> entries_;  // in the order of the keys' numbers
};

/// How much record text, in bytes, all projects together may add to the lists: as much as a machine
/// mostly has. Many hostile projects would otherwise take all memory, or all of a disk.
inline constexpr std::size_t kMaxTotalRecordText = std::size_t{sizeof(void*) > 4 ? 2U : 1U} << 30U;

/// What one search run collects.
struct SearchLists {
    /// The projects' full paths.
    TextList ProjectFiles;
    /// A key record for every plug-in of a project, with its merged state: project path, plug-in
    /// name and type, each in double quotes, joined by commas. The type is seven characters, padded
    /// with spaces.
    MergedStates ProjectPluginKeys;
    /// Every bank found, with its own state: the occurrence records, by `RecordOf`. The keys are
    /// those in `ProjectPluginKeys`, so that a record is in memory only once.
    std::vector<PluginState> PluginOccurrences;
    /// How much record text, in bytes, may still be added.
    std::size_t recordTextLeft = kMaxTotalRecordText;

    /// Empties the lists and gives their memory back.
    void Clear() { *this = {}; }
};

}  // namespace marlo
