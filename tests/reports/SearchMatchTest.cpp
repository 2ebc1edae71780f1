#include <gtest/gtest.h>

#include "reports/SearchMatch.h"

namespace marlo {
namespace {

bool Matches(const char* matchType, const char* searchText, std::string_view field) {
    return SearchMatch(matchType, searchText, false).Matches(field);
}

bool MatchesIgnoringCase(const char* searchText, std::string_view field) {
    return SearchMatch("Contains", searchText, true).Matches(field);
}

TEST(SearchMatchTest, ExactMatchIsTheWholeField) {
    EXPECT_TRUE(Matches("Exact match", "Reverb", "Reverb"));
    EXPECT_FALSE(Matches("Exact match", "Reverb", "Reverb "));
    EXPECT_FALSE(Matches("Exact match", "Rev", "Reverb"));
}

TEST(SearchMatchTest, StartsWithIsTheBeginning) {
    EXPECT_TRUE(Matches("Starts with", "Rev", "Reverb"));
    EXPECT_TRUE(Matches("Starts with", "Reverb", "Reverb"));
    EXPECT_FALSE(Matches("Starts with", "everb", "Reverb"));
}

TEST(SearchMatchTest, ContainsIsAnywhere) {
    EXPECT_TRUE(Matches("Contains", "ver", "Reverb"));
    EXPECT_FALSE(Matches("Contains", "Ver", "Reverb"));
}

TEST(SearchMatchTest, EndsWithIsTheEnd) {
    EXPECT_TRUE(Matches("Ends with", "verb", "Reverb"));
    EXPECT_TRUE(Matches("Ends with", "Reverb", "Reverb"));
    EXPECT_FALSE(Matches("Ends with", "ver", "Reverb"));
}

TEST(SearchMatchTest, EndsWithLooksOnlyAtTheFirstPlaceWhereTheTextOccurs) {
    EXPECT_FALSE(Matches("Ends with", "lay", "DelayDelay"));
    EXPECT_FALSE(Matches("Ends with", "Delay", "DelayDelay"));
    EXPECT_FALSE(Matches("Ends with", "aa", "aaa"));
}

TEST(SearchMatchTest, AnEmptyTextStartsEveryFieldThatIsNotEmptyAndEndsNone) {
    for (const char* matchType : {"Starts with", "Contains"}) {
        EXPECT_TRUE(Matches(matchType, "", "Reverb"));
        EXPECT_FALSE(Matches(matchType, "", ""));
    }
    EXPECT_FALSE(Matches("Ends with", "", "Reverb"));
    EXPECT_FALSE(Matches("Ends with", "", ""));
    EXPECT_TRUE(Matches("Exact match", "", ""));
    EXPECT_FALSE(Matches("Exact match", "", "Reverb"));
}

TEST(SearchMatchTest, AnyOtherMatchTypeNeverMatches) {
    for (const char* matchType : {"", "contains", "Contains "}) {
        EXPECT_FALSE(Matches(matchType, "Reverb", "Reverb"));
        EXPECT_FALSE(Matches(matchType, "", ""));
    }
}

TEST(SearchMatchTest, TheTextIsUsedAsTyped) {
    EXPECT_FALSE(Matches("Contains", " verb", "Reverb"));
    EXPECT_TRUE(Matches("Contains", " verb", "Re verb"));
}

TEST(SearchMatchTest, IgnoringCaseComparesBothSidesInUpperCase) {
    EXPECT_TRUE(MatchesIgnoringCase("VERB", "Reverb"));
    EXPECT_TRUE(MatchesIgnoringCase("verb", "REVERB"));
    EXPECT_FALSE(Matches("Contains", "VERB", "Reverb"));
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
    EXPECT_TRUE(Matches("Exact match", "Réverb", "R\xE9verb"));
    EXPECT_TRUE(Matches("Exact match", "R\xE9verb", "Réverb"));
    EXPECT_TRUE(MatchesIgnoringCase("RÉV", "r\xE9verb"));
    EXPECT_TRUE(MatchesIgnoringCase("Ÿ", "\xFF"));
    EXPECT_FALSE(Matches("Contains", "\xC3", "Réverb")) << "half of a character is none";
}

TEST(SearchMatchTest, OneSearchMatchesManyFields) {
    SearchMatch match("Contains", "é", true);
    EXPECT_TRUE(match.Matches("R\xE9verb"));
    EXPECT_FALSE(match.Matches("Reverb"));
    EXPECT_TRUE(match.Matches("RÉVERB"));
}

}  // namespace
}  // namespace marlo
