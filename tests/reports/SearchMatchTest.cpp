#include <gtest/gtest.h>

#include "reports/SearchMatch.h"

namespace marlo {
namespace {

bool Matches(std::optional<MatchType> matchType, const char* searchText, std::string_view field) {
    return SearchMatch(matchType, searchText, false).Matches(field);
}

bool MatchesIgnoringCase(const char* searchText, std::string_view field) {
    return SearchMatch(MatchType::Contains, searchText, true).Matches(field);
}

TEST(SearchMatchTest, ExactMatchIsTheWholeField) {
    EXPECT_TRUE(Matches(MatchType::Exact, "Reverb", "Reverb"));
    EXPECT_FALSE(Matches(MatchType::Exact, "Reverb", "Reverb "));
    EXPECT_FALSE(Matches(MatchType::Exact, "Rev", "Reverb"));
}

TEST(SearchMatchTest, StartsWithIsTheBeginning) {
    EXPECT_TRUE(Matches(MatchType::StartsWith, "Rev", "Reverb"));
    EXPECT_TRUE(Matches(MatchType::StartsWith, "Reverb", "Reverb"));
    EXPECT_FALSE(Matches(MatchType::StartsWith, "everb", "Reverb"));
}

TEST(SearchMatchTest, ContainsIsAnywhere) {
    EXPECT_TRUE(Matches(MatchType::Contains, "ver", "Reverb"));
    EXPECT_FALSE(Matches(MatchType::Contains, "Ver", "Reverb"));
}

TEST(SearchMatchTest, EndsWithIsTheEnd) {
    EXPECT_TRUE(Matches(MatchType::EndsWith, "verb", "Reverb"));
    EXPECT_TRUE(Matches(MatchType::EndsWith, "Reverb", "Reverb"));
    EXPECT_FALSE(Matches(MatchType::EndsWith, "ver", "Reverb"));
}

TEST(SearchMatchTest, EndsWithLooksOnlyAtTheFirstPlaceWhereTheTextOccurs) {
    EXPECT_FALSE(Matches(MatchType::EndsWith, "lay", "DelayDelay"));
    EXPECT_FALSE(Matches(MatchType::EndsWith, "Delay", "DelayDelay"));
    EXPECT_FALSE(Matches(MatchType::EndsWith, "aa", "aaa"));
}

TEST(SearchMatchTest, AnEmptyTextStartsEveryFieldThatIsNotEmptyAndEndsNone) {
    for (const MatchType matchType : {MatchType::StartsWith, MatchType::Contains}) {
        EXPECT_TRUE(Matches(matchType, "", "Reverb"));
        EXPECT_FALSE(Matches(matchType, "", ""));
    }
    EXPECT_FALSE(Matches(MatchType::EndsWith, "", "Reverb"));
    EXPECT_FALSE(Matches(MatchType::EndsWith, "", ""));
    EXPECT_TRUE(Matches(MatchType::Exact, "", ""));
    EXPECT_FALSE(Matches(MatchType::Exact, "", "Reverb"));
}

TEST(SearchMatchTest, WithoutAMatchTypeNothingMatches) {
    EXPECT_FALSE(Matches(std::nullopt, "Reverb", "Reverb"));
    EXPECT_FALSE(Matches(std::nullopt, "", ""));
}

TEST(SearchMatchTest, APositionThatTheListDoesNotHaveIsNoMatchType) {
    EXPECT_EQ(MatchTypeAt(0), MatchType::Exact);
    EXPECT_EQ(MatchTypeAt(3), MatchType::Contains);
    EXPECT_EQ(MatchTypeAt(-1), std::nullopt);
    EXPECT_EQ(MatchTypeAt(4), std::nullopt);
}

TEST(SearchMatchTest, TheTextIsUsedAsTyped) {
    EXPECT_FALSE(Matches(MatchType::Contains, " verb", "Reverb"));
    EXPECT_TRUE(Matches(MatchType::Contains, " verb", "Re verb"));
}

TEST(SearchMatchTest, IgnoringCaseComparesBothSidesInUpperCase) {
    EXPECT_TRUE(MatchesIgnoringCase("VERB", "Reverb"));
    EXPECT_TRUE(MatchesIgnoringCase("verb", "REVERB"));
    EXPECT_FALSE(Matches(MatchType::Contains, "VERB", "Reverb"));
}

TEST(SearchMatchTest, IgnoringCaseKnowsTheLettersOfOtherLanguages) {
    EXPECT_TRUE(MatchesIgnoringCase("réverb", "RÉVERB"));
    EXPECT_TRUE(MatchesIgnoringCase("ÿ", "Ÿ"));
    EXPECT_TRUE(MatchesIgnoringCase("жук", "ЖУК"));
}

TEST(SearchMatchTest, ASharpSStaysOneCharacter) {
    EXPECT_FALSE(MatchesIgnoringCase("ß", "SS"));
    EXPECT_TRUE(MatchesIgnoringCase("ß", "Großer Hall"));
}

TEST(SearchMatchTest, CharactersAreComparedWhateverTheirEncoding) {
    EXPECT_TRUE(Matches(MatchType::Exact, "Réverb", "R\xE9verb"));
    EXPECT_TRUE(Matches(MatchType::Exact, "R\xE9verb", "Réverb"));
    EXPECT_TRUE(MatchesIgnoringCase("RÉV", "r\xE9verb"));
    EXPECT_TRUE(MatchesIgnoringCase("Ÿ", "\xFF"));
    EXPECT_FALSE(Matches(MatchType::Contains, "\xC3", "Réverb")) << "half of a character is none";
}

TEST(SearchMatchTest, OneSearchMatchesManyFields) {
    SearchMatch match(MatchType::Contains, "é", true);
    EXPECT_TRUE(match.Matches("R\xE9verb"));
    EXPECT_FALSE(match.Matches("Reverb"));
    EXPECT_TRUE(match.Matches("RÉVERB"));
}

}  // namespace
}  // namespace marlo
