#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "core/TextArena.h"

namespace marlo {

/// Distinct texts, numbered from 0 as they were added. A text's number is found in constant time,
/// with less memory to look at than the standard containers need: that is most of what a report of
/// many rows takes.
class TextTable {
  public:
    std::size_t Size() const { return texts_.size(); }
    std::string_view operator[](std::size_t number) const { return texts_[number]; }

    /// The number of a text that is in the table.
    std::optional<std::size_t> Find(std::string_view text) const;

    /// Adds a copy of a text that is not in the table yet; its number is the old size.
    /// @return false when it is there already.
    /// @throws std::length_error when there are as many texts as the table can number.
    bool Add(std::string_view text);

    /// The number of a text, of which a copy is added when it is not in the table yet.
    /// @param beforeAdding called before that; may throw to prevent it.
    /// @throws std::length_error as `Add` does.
    std::size_t FindOrAdd(std::string_view text, const std::function<void()>& beforeAdding);

    /// Memory that lives as long as the texts.
    TextArena& Arena() { return arena_; }

    /// Forgets all texts, and keeps their memory for others.
    void Clear();

  private:
    /// A place for a text: its number + 1, or 0 for none, and a part of its hash.
    struct Slot {
        std::uint32_t number = 0;
        std::uint32_t hash = 0;
    };

    std::size_t SlotFor(std::string_view text, std::size_t hash) const;
    Slot& SlotToFill(std::string_view text, std::size_t hash);
    void Fill(Slot& slot, std::string_view text, std::size_t hash);
    void Grow();

    TextArena arena_;
    std::vector<std::string_view> texts_;
    std::vector<Slot> slots_;  // as many as a power of two; at least an eighth of them are free
};

}  // namespace marlo
