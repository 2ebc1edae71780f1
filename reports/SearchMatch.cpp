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

SearchMatch::SearchMatch(std::string_view matchType, std::string_view searchText, bool ignoreCase)
    : kind_(KindOf(matchType)), ignoreCase_(ignoreCase), searchText_(Comparable(searchText)) {}

SearchMatch::Kind SearchMatch::KindOf(std::string_view matchType) {
    if (matchType == match_type::kExact)
        return Kind::Exact;
    if (matchType == match_type::kStartsWith)
        return Kind::StartsWith;
    if (matchType == match_type::kEndsWith)
        return Kind::EndsWith;
    return matchType == match_type::kContains ? Kind::Contains : Kind::Never;
}

bool SearchMatch::Matches(std::string_view field) {
    const std::string_view value = Comparable(field);
    if (kind_ == Kind::Exact)
        return value == searchText_;
    if (value.empty() || kind_ == Kind::Never)
        return false;
    if (kind_ == Kind::StartsWith)
        return value.starts_with(searchText_);
    const std::size_t position = value.find(searchText_);
    if (position == std::string_view::npos)
        return false;
    return kind_ == Kind::Contains || position + searchText_.size() == value.size();
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
