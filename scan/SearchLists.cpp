#include "scan/SearchLists.h"

namespace marlo {

const MergedStates::Entry& MergedStates::Merge(std::string_view key, std::string_view state,
                                               const std::function<void()>& beforeAdding) {
    if (const auto found = index_.find(key); found != index_.end()) {
        Entry& entry = *found->second;
        if (state == kOn)
            entry.state = kOn;
        return entry;
    }
    beforeAdding();
    Entry& entry = entries_.Append({std::string(key), std::string(state)});
    try {
        index_.emplace(entry.key, &entry);
    } catch (...) {
        entries_.RemoveLast();
        throw;
    }
    return entry;
}

void MergedStates::Clear() {
    index_.clear();
    entries_.Clear();
}

void SearchLists::Clear() {
    ProjectFiles.Clear();
    PluginOccurrences.Clear();
    ProjectPluginKeys.Clear();
}

}  // namespace marlo
