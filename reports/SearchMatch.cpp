#include "reports/SearchMatch.h"

#include <algorithm>

#include "core/Text.h"

namespace marlo {

namespace {

bool IsAscii(std::string_view text) {
    unsigned char bits = 0;
    for (const char c : text)
        bits |= static_cast<unsigned char>(c);
    return bits < 0x80;
}

}  // namespace

std::optional<MatchType> MatchTypeAt(double position) {
    if (position < 0 || position >= static_cast<double>(kMatchTypes.size()))
        return std::nullopt;
    return static_cast<MatchType>(position);
}

SearchMatch::SearchMatch(std::optional<MatchType> matchType, std::string_view searchText,
                         bool ignoreCase)
    : matchType_(matchType), ignoreCase_(ignoreCase), searchText_(Comparable(searchText)) {}

bool SearchMatch::Matches(std::string_view field) {
    const std::string_view value = Comparable(field);
    if (matchType_ == MatchType::Exact)
        return value == searchText_;
    if (value.empty() || !matchType_)
        return false;
    if (matchType_ == MatchType::StartsWith)
        return value.starts_with(searchText_);
    const std::size_t position = value.find(searchText_);
    if (position == std::string_view::npos)
        return false;
    return matchType_ == MatchType::Contains || position + searchText_.size() == value.size();
}

/// A field as it is compared: as UTF-8, whose bytes tell two texts apart as their characters do.
std::string_view SearchMatch::Comparable(std::string_view field) {
    if (ignoreCase_)
        converted_ = UpperCaseUtf8(field);
    else if (IsAscii(field))
        return field;
    else
        converted_ = DecodeToUtf8(field);
    return converted_;
}

}  // namespace marlo
