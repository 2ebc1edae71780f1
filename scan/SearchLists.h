#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "core/RunTimeError.h"

namespace marlo {

/// A list with entries from index 1 to `UpperBound()`. An entry stays where it is in memory for as
/// long as the list has it.
template <class Entry>
class List {
  public:
    std::size_t UpperBound() const { return entries_.size(); }
    /// @throws RunTimeError "Subscript out of range".
    const Entry& operator[](std::size_t index) const {
        if (index < 1 || index > entries_.size())
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        return entries_[index - 1];
    }
    auto begin() const { return entries_.begin(); }
    auto end() const { return entries_.end(); }

    Entry& Append(Entry entry) { return entries_.emplace_back(std::move(entry)); }
    void RemoveLast() { entries_.pop_back(); }
    void Clear() { entries_.clear(); }

  private:
    std::deque<Entry> entries_;
};

using TextList = List<std::string>;

inline constexpr std::string_view kOn = "On";
inline constexpr std::string_view kOff = "Off";

/// Distinct keys in the order of their first appearance, each with one merged state: "On" once any
/// of its uses was on, "Off" before. A key is found in constant time.
class MergedStates {
  public:
    struct Entry {
        std::string key;
        std::string state;
    };

    /// Adds `key` with `state`, or merges the state into the entry that has the key.
    /// @param beforeAdding called before a new key is added; may throw to prevent it.
    /// @return the entry.
    const Entry& Merge(
        std::string_view key, std::string_view state,
        const std::function<void()>& beforeAdding = [] {});

    std::size_t UpperBound() const { return entries_.UpperBound(); }
    const Entry& operator[](std::size_t index) const { return entries_[index]; }
    auto begin() const { return entries_.begin(); }
    auto end() const { return entries_.end(); }
    void Clear();

  private:
    List<Entry> entries_;
    std::unordered_map<std::string_view, Entry*> index_;  // of the keys in entries_
};

/// What one search run collects.
struct SearchLists {
    /// The projects' full paths.
    TextList ProjectFiles;
    /// An occurrence record for every bank found: project path, plug-in name, type and state, each
    /// in double quotes, joined by commas. The type is seven characters, padded with spaces.
    TextList PluginOccurrences;
    /// A key record for every plug-in of a project, the first three fields of the occurrence
    /// record, with its merged state (`ProjectPluginStates`).
    MergedStates ProjectPluginKeys;

    void Clear();
};

}  // namespace marlo
