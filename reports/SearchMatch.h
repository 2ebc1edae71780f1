#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace marlo {

/// The ways in which a value can match a search text, in the order of the user's list.
enum class MatchType { Exact, StartsWith, EndsWith, Contains };

/// What they are called in that list.
inline constexpr std::array<const char*, 4> kMatchTypes = {"Exact match", "Starts with",
                                                           "Ends with", "Contains"};

/// The match type at a position of the list, 0-based, as the settings hold it; nothing for one that
/// the list does not have.
std::optional<MatchType> MatchTypeAt(double position);

/// What a search looks for. Fields are compared by their characters (see core/Text.h).
class SearchMatch {
  public:
    /// @param matchType without one, nothing matches.
    /// @param searchText as typed, a field; it may be empty.
    /// @param ignoreCase whether both sides are compared in upper case.
    SearchMatch(std::optional<MatchType> matchType, std::string_view searchText, bool ignoreCase);

    /// Whether a field matches. "Ends with" looks at the first place only where the text occurs.
    /// An empty text occurs at the start of every field that is not empty.
    bool Matches(std::string_view field);

  private:
    std::string_view Comparable(std::string_view field);

    std::optional<MatchType> matchType_;
    bool ignoreCase_;
    std::string
        converted_;  ///< the field that was compared last, where it is not compared as it is
    std::string searchText_;
};

}  // namespace marlo
