#pragma once

#include <array>
#include <string>
#include <string_view>

namespace marlo {

/// The ways in which a value can match a search text, as the user picks them.
namespace match_type {
inline constexpr const char* kExact = "Exact match";
inline constexpr const char* kStartsWith = "Starts with";
inline constexpr const char* kEndsWith = "Ends with";
inline constexpr const char* kContains = "Contains";
}  // namespace match_type

/// The match types in the order of the user's list; settings hold the position in it.
inline constexpr std::array<const char*, 4> kMatchTypes = {
    match_type::kExact, match_type::kStartsWith, match_type::kEndsWith, match_type::kContains};

/// What a search looks for. Fields are compared by their characters (see core/Text.h).
class SearchMatch {
  public:
    /// @param matchType one of `match_type`; with any other, nothing matches.
    /// @param searchText as typed, a field; it may be empty.
    /// @param ignoreCase whether both sides are compared in upper case.
    SearchMatch(std::string_view matchType, std::string_view searchText, bool ignoreCase);

    /// Whether a field matches. "Ends with" looks at the first place only where the text occurs.
    /// An empty text occurs at the start of every field that is not empty.
    bool Matches(std::string_view field);

  private:
    enum class Kind { Exact, StartsWith, EndsWith, Contains, Never };

    static Kind KindOf(std::string_view matchType);
    std::string_view Comparable(std::string_view field);

    Kind kind_;
    bool ignoreCase_;
    std::string
        converted_;  ///< the field that was compared last, where it is not compared as it is
    std::string searchText_;
};

}  // namespace marlo
