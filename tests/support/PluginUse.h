#pragma once

#include <string_view>

#include "scan/SearchLists.h"

namespace marlo::test {

/// Adds one use of a plug-in to the lists of a search, as a scan does.
/// @param state of this use.
inline void AddUse(SearchLists& lists, std::string_view key, std::string_view state) {
    const PluginState merged =
        MergeState(lists.ProjectPluginKeys, lists.ProjectPluginStates, key, state);
    lists.PluginOccurrences.push_back({merged.key, state == kOn ? kOn : kOff});
}

}  // namespace marlo::test
