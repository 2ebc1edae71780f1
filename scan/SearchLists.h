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

/// Distinct texts with indexes from 1 to `UpperBound()`, in the order of their first appearance. A
/// text is found in constant time.
class KeyList {
  public:
    std::size_t UpperBound() const { return keys_.Size(); }
    /// @throws RunTimeError "Subscript out of range".
    std::string_view operator[](std::size_t index) const;

    /// The index of a key, of which a copy is added when it is not in the list yet.
    /// @param beforeAdding called before that; may throw to prevent it.
    std::size_t FindOrAdd(std::string_view key, const std::function<void()>& beforeAdding);

  private:
    TextTable keys_;
};

/// The states of the keys of a `KeyList`, under the same indexes.
class StateList {
  public:
    std::size_t UpperBound() const { return states_.size(); }
    /// @throws RunTimeError "Subscript out of range".
    std::string_view operator[](std::size_t index) const;

    /// Adds "Off".
    void Append() { states_.push_back(kOff); }
    /// Makes a state "On". @param index of one that is there.
    void TurnOn(std::size_t index) { states_[index - 1] = kOn; }
    /// Removes the states behind `upperBound`.
    void Shrink(std::size_t upperBound) { states_.resize(upperBound); }

  private:
    std::vector<std::string_view> states_;
};

/// Adds a key with its state, or merges the state with the one that the key has already: "On" once
/// any use is on, "Off" before.
/// @param beforeAdding called before a new key is added; may throw to prevent it.
/// @return the key as it is in the list, with the merged state.
PluginState MergeState(
    KeyList& keys, StateList& states, std::string_view key, std::string_view state,
    const std::function<void()>& beforeAdding = [] {});

/// How much record text, in bytes, all projects together may add to the lists: as much as a machine
/// mostly has. Many hostile projects would otherwise take all memory, or all of a disk.
inline constexpr std::size_t kMaxTotalRecordText = std::size_t{sizeof(void*) > 4 ? 2U : 1U} << 30U;

/// What one search run collects.
struct SearchLists {
    /// The projects' full paths.
    TextList ProjectFiles;
    /// A key record for every plug-in of a project: project path, plug-in name and type, each in
    /// double quotes, joined by commas. The type is seven characters, padded with spaces.
    KeyList ProjectPluginKeys;
    /// The merged state of each of them.
    StateList ProjectPluginStates;
    /// Every bank found, with its own state: the occurrence records, by `RecordOf`. The keys are
    /// those in `ProjectPluginKeys`, so that a record is in memory only once.
    std::vector<PluginState> PluginOccurrences;
    /// How much record text, in bytes, may still be added.
    std::size_t recordTextLeft = kMaxTotalRecordText;

    /// Empties the lists and gives their memory back.
    void Clear() noexcept { *this = {}; }
};

}  // namespace marlo
