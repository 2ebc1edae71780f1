#include "scan/SearchLists.h"

#include "core/RunTimeError.h"

namespace marlo {

namespace {

template <class Entry>
const Entry& EntryAt(const std::vector<Entry>& entries, std::size_t index) {
    if (index < 1 || index > entries.size())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return entries[index - 1];
}

}  // namespace

std::string_view TextList::operator[](std::size_t index) const {
    return EntryAt(texts_, index);
}

void TextList::Append(std::string_view text) {
    texts_.push_back(arena_.Copy(text));
}

const MergedStates::Entry& MergedStates::operator[](std::size_t index) const {
    return EntryAt(entries_, index);
}

MergedStates::Entry MergedStates::Merge(std::string_view key, std::string_view state,
                                        const std::function<void()>& beforeAdding) {
    const std::string_view merged = state == kOn ? kOn : kOff;
    if (const auto number = keys_.Find(key)) {
        Entry& entry = entries_[*number];
        if (merged == kOn)
            entry.state = kOn;
        return entry;
    }
    beforeAdding();
    entries_.push_back({{}, merged});
    try {
        keys_.Add(key);
    } catch (...) {
        entries_.pop_back();
        throw;
    }
    entries_.back().key = keys_[keys_.Size() - 1];
    return entries_.back();
}

}  // namespace marlo
