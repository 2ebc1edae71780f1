#pragma once

#include <string_view>
#include <vector>

namespace marlo {

/// The chunk magic of an embedded VST bank.
inline constexpr std::string_view kBankMarker = "CcnK";

/// The first `kBankMarker` that lies wholly between `first` and `last`; `last` if there is none.
/// Goes through memory at several times the speed of a file that is read from the page cache.
const unsigned char* FindMarker(const unsigned char* first, const unsigned char* last);

using MarkerSearch = const unsigned char* (*)(const unsigned char* first,
                                              const unsigned char* last);

/// The searches that this processor can do, the fastest first; that one is `FindMarker`.
const std::vector<MarkerSearch>& MarkerSearches();

}  // namespace marlo
