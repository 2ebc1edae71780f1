#include "core/TextTable.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

namespace marlo {

namespace {

constexpr std::size_t kFirstSlots = 64;

/// The part of a hash that leads to a slot and is compared there.
std::uint32_t TagOf(std::size_t hash) {
    return static_cast<std::uint32_t>(hash);
}

}  // namespace

std::optional<std::size_t> TextTable::Find(std::string_view text) const {
    if (slots_.empty())
        return std::nullopt;
    const Slot& slot = slots_[SlotFor(text, std::hash<std::string_view>()(text))];
    if (slot.number == 0)
        return std::nullopt;
    return slot.number - 1;
}

bool TextTable::Add(std::string_view text) {
    const std::size_t hash = std::hash<std::string_view>()(text);
    Slot& slot = SlotToFill(text, hash);
    if (slot.number != 0)
        return false;
    Fill(slot, text, hash);
    return true;
}

std::size_t TextTable::FindOrAdd(std::string_view text, const std::function<void()>& beforeAdding) {
    const std::size_t hash = std::hash<std::string_view>()(text);
    Slot& slot = SlotToFill(text, hash);
    if (slot.number == 0) {
        beforeAdding();
        Fill(slot, text, hash);
    }
    return slot.number - 1;
}

void TextTable::Clear() {
    std::fill(slots_.begin(), slots_.end(), Slot());
    texts_.clear();
    arena_.Clear();
}

/// The slot that holds `text`, else the free one that it goes to.
std::size_t TextTable::SlotFor(std::string_view text, std::size_t hash) const {
    const std::uint32_t tag = TagOf(hash);
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = tag & mask;
    while (slots_[slot].number != 0 &&
           (slots_[slot].hash != tag || texts_[slots_[slot].number - 1] != text))
        slot = (slot + 1) & mask;
    return slot;
}

/// The same in a table with room for one text more.
TextTable::Slot& TextTable::SlotToFill(std::string_view text, std::size_t hash) {
    if (slots_.size() * 7 < 8 * (texts_.size() + 1))
        Grow();
    return slots_[SlotFor(text, hash)];
}

void TextTable::Fill(Slot& slot, std::string_view text, std::size_t hash) {
    if (texts_.size() == std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("too many texts");
    texts_.push_back(arena_.Copy(text));
    slot = {static_cast<std::uint32_t>(texts_.size()), TagOf(hash)};
}

void TextTable::Grow() {
    std::vector<Slot> slots(slots_.empty() ? kFirstSlots : 2 * slots_.size());
    const std::size_t mask = slots.size() - 1;
    for (const Slot& old : slots_) {
        if (old.number == 0)
            continue;
        std::size_t slot = old.hash & mask;
        while (slots[slot].number != 0)
            slot = (slot + 1) & mask;
        slots[slot] = old;
    }
    slots_ = std::move(slots);
}

}  // namespace marlo
