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

const PluginState& MergedStates::operator[](std::size_t index) const {
    return EntryAt(entries_, index);
}

PluginState MergedStates::Merge(std::string_view key, std::string_view state,
                                const std::function<void()>& beforeAdding) {
    std::size_t number = 0;
    try {
        number = keys_.FindOrAdd(key, [&] {
            beforeAdding();
            entries_.push_back({{}, kOff});
        });
    } catch (...) {
        entries_.resize(keys_.Size());
        throw;
    }
    PluginState& entry = entries_[number];
    entry.key = keys_[number];
    if (state == kOn)
        entry.state = kOn;
    return entry;
}

std::string RecordOf(const PluginState& plugin) {
    std::string record;
    record.reserve(plugin.key.size() + plugin.state.size() + std::string_view(R"(,"")").size());
    record.append(plugin.key).append(",\"").append(plugin.state).append("\"");
    return record;
}

}  // namespace marlo
