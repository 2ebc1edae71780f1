#include <gtest/gtest.h>

#include "core/Text.h"

namespace marlo {
namespace {

TEST(TextTest, ValidUtf8IsDecodedAsUtf8) {
    EXPECT_EQ(Decode("R\xC3\xA9verb"), U"R\u00E9verb");
    EXPECT_EQ(Decode("\xE6\x9B\xB2 \xF0\x9F\x8E\xB9"), U"\u66F2 \U0001F3B9");
    EXPECT_EQ(Decode(""), U"");
}

TEST(TextTest, AnythingElseIsDecodedInTheAnsiCodePage) {
    EXPECT_EQ(Decode("R\xE9verb"), U"R\u00E9verb");
    EXPECT_EQ(Decode("\x80\x92"), U"\u20AC\u2019");
    EXPECT_EQ(Decode("\x81"), U"\u0081");
}

TEST(TextTest, OneWrongByteMakesTheWholeFieldAnsi) {
    EXPECT_EQ(Decode("\xC3\xA9\xE9"), U"\u00C3\u00A9\u00E9");
}

TEST(TextTest, OverlongSurrogateAndTooLargeFormsAreNotUtf8) {
    EXPECT_EQ(Decode("\xC0\xAF").size(), 2U);
    EXPECT_EQ(Decode("\xE0\x80\xAF").size(), 3U);
    EXPECT_EQ(Decode("\xED\xA0\x80").size(), 3U);
    EXPECT_EQ(Decode("\xF4\x90\x80\x80").size(), 4U);
}

TEST(TextTest, ACutCharacterIsNotUtf8) {
    EXPECT_EQ(Decode("\xE6\x9B").size(), 2U);
}

TEST(TextTest, ANulIsACharacterLikeAnyOther) {
    EXPECT_EQ(Decode(std::string_view("a\0b", 3)), std::u32string(U"a\0b", 3));
}

TEST(TextTest, EncodingUndoesDecoding) {
    const std::u32string text = U"a\u007F\u0080\u07FF\u0800\uFFFD\U00010000\U0010FFFF";
    EXPECT_EQ(Decode(EncodeUtf8(text)), text);
}

TEST(TextTest, DisplayTextIsUtf8) {
    EXPECT_EQ(DecodeToUtf8("R\xE9verb"), "R\xC3\xA9verb");
}

TEST(TextTest, UpperCaseKnowsTheWesternLetters) {
    EXPECT_EQ(UpperCase(U"abcz\u00E9\u00FE\u00FF\u0161\u0153"),
              U"ABCZ\u00C9\u00DE\u0178\u0160\u0152");
}

TEST(TextTest, UpperCaseKnowsGreekAndCyrillic) {
    EXPECT_EQ(UpperCase(U"\u03B1\u03C2\u03CE\u0436\u0451"), U"\u0391\u03A3\u038F\u0416\u0401");
}

TEST(TextTest, UpperCaseLeavesTheCapitalsBetweenSmallLetters) {
    EXPECT_EQ(UpperCase(U"\u0102\u0103\u0141\u0142"), U"\u0102\u0102\u0141\u0141");
}

TEST(TextTest, UpperCaseLeavesWhatHasNoSingleCapital) {
    EXPECT_EQ(UpperCase(U"\u00DF\u00F7\u00D7\u0149 1[{\u66F2"),
              U"\u00DF\u00F7\u00D7\u0149 1[{\u66F2");
}

TEST(TextTest, UpperCaseLeavesCapitals) {
    EXPECT_EQ(UpperCase(U"AZ\u00C9\u0100\u0139\u0391\u0401"), U"AZ\u00C9\u0100\u0139\u0391\u0401");
}

TEST(TextTest, AFieldInUpperCaseIsUtf8) {
    EXPECT_EQ(UpperCaseUtf8("Tape Delay {z}"), "TAPE DELAY {Z}");
    EXPECT_EQ(UpperCaseUtf8("r\xE9verb"), "RÉVERB");
    EXPECT_EQ(UpperCaseUtf8("réverb ß"), "RÉVERB ß");
    EXPECT_EQ(UpperCaseUtf8(""), "");
}

TEST(TextTest, FieldsAreEqualIgnoringTheCaseOfTheirCharacters) {
    EXPECT_TRUE(EqualIgnoringCase("R\xE9verb", "R\xC3\x89VERB"));
    EXPECT_FALSE(EqualIgnoringCase("Reverb", "R\xE9verb"));
}

TEST(TextTest, OnlySpacesAreTrimmed) {
    EXPECT_EQ(TrimSpaces("  a b\t "), "a b\t");
    EXPECT_EQ(TrimSpaces("   "), "");
    EXPECT_EQ(TrimSpaces(""), "");
}

TEST(TextTest, ALeadingNumberIsReadAsFarAsItGoes) {
    EXPECT_EQ(LeadingNumber("11-15-2026 03:10:00"), 11);
    EXPECT_EQ(LeadingNumber(" 2.5x"), 2.5);
    EXPECT_EQ(LeadingNumber("-3"), -3);
    EXPECT_EQ(LeadingNumber("-.5"), -0.5);
    EXPECT_EQ(LeadingNumber("x1"), 0);
    EXPECT_EQ(LeadingNumber("inf1"), 0);
    EXPECT_EQ(LeadingNumber("-nan"), 0);
    EXPECT_EQ(LeadingNumber(""), 0);
}

TEST(TextTest, NamesAreSortedByTheirCharactersWithoutRegardToCase) {
    std::vector<std::string> names = {"b", "A", "_", "É", "a", "é1", "\xE9\x30"};
    SortIgnoringCase(names);
    EXPECT_EQ(names, (std::vector<std::string>{"A", "a", "b", "_", "É", "\xE9\x30", "é1"}));
}

}  // namespace
}  // namespace marlo
