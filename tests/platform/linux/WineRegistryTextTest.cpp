#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "platform/Registry.h"
#include "platform/linux/WineRegistryText.h"

namespace marlo::platform {
namespace {

using namespace std::string_literals;

std::string Unescaped(std::string_view text) {
    text.remove_prefix(1);
    return Unescape(text, '"');
}

/// A value's bytes; "(none)" without one.
std::string Find(std::string_view lines, std::string_view name = "v") {
    const auto value = FindValue(lines, name);
    return value ? std::string(value->data.begin(), value->data.end()) : "(none)";
}

TEST(UnescapeTest, EscapesStandForCharacters) {
    EXPECT_EQ(Unescaped(R"("C:\\Effects\\a \"b\"")"), R"(C:\Effects\a "b")");
    EXPECT_EQ(Unescaped(R"("\n\r\t\0\e\a\b\f\v")"), "\n\r\t\0\x1b\a\b\f\v"s);
    EXPECT_EQ(Unescaped(R"("\[x\]")"), "[x]");
}

TEST(UnescapeTest, OctalNumbersHaveUpToThreeDigits) {
    EXPECT_EQ(Unescaped(R"("\1x\0018\37")"), "\1x\0018\37"s);
}

TEST(UnescapeTest, HexadecimalNumbersHaveUpToFourDigits) {
    EXPECT_EQ(Unescaped(R"("R\xe9verb")"), "Réverb");
    EXPECT_EQ(Unescaped(R"("\x00c9a")"), "Éa");
    EXPECT_EQ(Unescaped(R"("\x66f2")"), "曲");
    EXPECT_EQ(Unescaped(R"("\xyz")"), "xyz");
}

TEST(UnescapeTest, TwoSurrogatesAreOneCharacterAndOneAloneIsReplaced) {
    EXPECT_EQ(Unescaped(R"("\xd83c\xdfb9")"), "🎹");
    EXPECT_EQ(Unescaped(R"("a\xd83cb")"), "a\xEF\xBF\xBD"s + "b");
    EXPECT_EQ(Unescaped(R"("\xdfb9")"), "\xEF\xBF\xBD");
    EXPECT_EQ(Unescaped(R"("\xd83c")"), "\xEF\xBF\xBD");
}

TEST(UnescapeTest, BytesBeyondAsciiStayAsTheyAre) {
    EXPECT_EQ(Unescaped("\"R\xE9verb Réverb\""), "R\xE9verb Réverb");
}

TEST(UnescapeTest, NothingBecomesLonger) {
    for (const char* text : {"\\x80", "\\x8", "\\xffff", "\\xd83c", "\\377", "\\7", "\xFF", "\\"}) {
        std::string_view rest = text;
        EXPECT_LE(Unescape(rest, '"').size(), std::string_view(text).size()) << text;
    }
}

TEST(UnescapeTest, WithoutAnEndNothingIsLeft) {
    std::string_view text = "cut short\\";
    EXPECT_EQ(Unescape(text, '"'), "cut short\\");
    EXPECT_TRUE(text.empty());
}

TEST(CompareNamesTest, CaseDoesNotCountAlsoBeyondAscii) {
    EXPECT_EQ(CompareNames("Software\\VST", "SOFTWARE\\vst"), 0);
    EXPECT_EQ(CompareNames("Éa", "éA"), 0);
    EXPECT_NE(CompareNames("a", "b"), 0);
}

TEST(CompareNamesTest, TheOrderIsThatOfSmallLettersAndStepByStep) {
    EXPECT_LT(CompareNames("FX_A", "fxb"), 0);
    EXPECT_LT(CompareNames("a", "a b"), 0);
    EXPECT_LT(CompareNames("a\\z", "a b"), 0) << "what lies below a key follows it at once";
    EXPECT_LT(CompareNames("É", "Ê"), 0) << "characters that have their first byte in common";
    EXPECT_GT(CompareNames("b", "A"), 0);
    EXPECT_NE(CompareNames("a\0b"s, "a\\b"), 0);
}

TEST(HeadTest, APathIsTakenApartInSteps) {
    EXPECT_EQ(Head("a\\b\\c", 0), "");
    EXPECT_EQ(Head("a\\b\\c", 2), "a\\b");
    EXPECT_EQ(Head("a\\b\\c", 9), "a\\b\\c");
    EXPECT_EQ(Head("\\a", 1), "") << "the first step may be empty";
    EXPECT_EQ(Head("\\a", 2), "\\a");
    EXPECT_EQ(Depth(""), 0U);
    EXPECT_EQ(Depth("a\\b\\c"), 3U);
}

TEST(RestBelowTest, ThePathBelowAKeyIsFoundWithoutRegardToCase) {
    EXPECT_EQ(RestBelow("Software\\Classes\\x", "software"), "Classes\\x");
    EXPECT_EQ(RestBelow("Software", "SOFTWARE"), "");
    EXPECT_EQ(RestBelow("Software", ""), "Software");
    EXPECT_FALSE(RestBelow("Software2\\x", "Software"));
    EXPECT_FALSE(RestBelow("Soft", "Software"));
}

TEST(FindValueTest, ATextEndsWithANul) {
    const auto value = FindValue("\"FriendlyName\"=\"R\\xe9verb\"\n", "friendlyname");
    ASSERT_TRUE(value);
    EXPECT_EQ(value->type, registry_type::kString);
    EXPECT_EQ(std::string(value->data.begin(), value->data.end()), "R\xE9verb\0"s);
}

TEST(FindValueTest, TheDefaultValueHasNoName) {
    EXPECT_EQ(Find("#time=1\n\"a\"=\"x\"\n@=\"Echo\"\n", ""), "Echo\0"s);
}

TEST(FindValueTest, ANumberHasItsLowByteFirst) {
    const auto value = FindValue("\"Merit\"=dword:00200001\n", "Merit");
    ASSERT_TRUE(value);
    EXPECT_EQ(value->type, registry_type::kDword);
    EXPECT_EQ(value->data, (std::vector<unsigned char>{1, 0, 0x20, 0}));
}

TEST(FindValueTest, BytesGoOnInTheNextLines) {
    EXPECT_EQ(Find("\"v\"=hex:41,42,\\\n  43,44,\\\n  45\n\"w\"=\"x\"\n"), "ABCDE");
    EXPECT_EQ(Find("\"v\"=hex:41,\\\r\n  42\r\n"), "AB");
    EXPECT_EQ(Find("\"v\"=hex:\n"), "");
}

TEST(FindValueTest, BytesMayBeOfAnyType) {
    EXPECT_EQ(FindValue("\"v\"=hex(b):01,00\n", "v")->type, 11);
    EXPECT_EQ(FindValue("\"v\"=hex(0):\n", "v")->type, 0);
    EXPECT_EQ(FindValue("\"v\"=hex(ffff0007):03\n", "v")->type,
              static_cast<std::int32_t>(0xFFFF0007));
}

TEST(FindValueTest, TextsMayBeWrittenAsBytes) {
    const auto value = FindValue("\"v\"=hex(1):52,00,e9,00,00,00\n", "v");
    EXPECT_EQ(value->type, registry_type::kString);
    EXPECT_EQ(Find("\"v\"=hex(1):52,00,e9,00,00,00\n"), "R\xE9\0"s);
    EXPECT_EQ(Find("\"v\"=hex(7):61,00,00,00,f2,66,00,00,00,00\n"), "a\0曲\0\0"s);
    EXPECT_EQ(Find("\"v\"=hex(2):41,00,42\n"), "A") << "half a character is left out";
    EXPECT_EQ(Find("\"v\"=hex(1):\n"), "");
}

TEST(FindValueTest, ExpandableAndMultipleTextsAreMarked) {
    const std::string lines = "\"a\"=str(2):\"%HOME%\"\n\"b\"=str(7):\"a\\0b\\0\"\n";
    EXPECT_EQ(FindValue(lines, "a")->type, registry_type::kExpandString);
    EXPECT_EQ(Find(lines, "a"), "%HOME%\0"s);
    EXPECT_EQ(FindValue(lines, "b")->type, registry_type::kMultiString);
    EXPECT_EQ(Find(lines, "b"), "a\0b\0\0"s);
}

TEST(FindValueTest, TheLastOfTwoValuesCounts) {
    EXPECT_EQ(Find("\"v\"=\"old\"\n\"V\"=\"new\"\n"), "new\0"s);
}

TEST(FindValueTest, MalformedAndCutLinesAreSkipped) {
    for (const char* line :
         {"\"v\"=\"cut", "\"v\"=", "\"v\"", "\"v", "\"v\"=dword:0020000", "\"v\"=dword:xyzxyzxy",
          "\"v\"=dword:-0000001", "\"v\"=hex:4", "\"v\"=hex:41,", "\"v\"=hex:41,\\",
          "\"v\"=hex:41 42", "\"v\"=hex(:41", "\"v\"=hex(2:41", "\"v\"=hexadecimal",
          "\"v\"=str(2)\"x\"", "\"v\"=nonsense:1", "v=\"x\"", "\"v\" = \"x\""}) {
        EXPECT_EQ(Find(line), "(none)") << line;
        EXPECT_EQ(Find(line + "\n\"v\"=\"next\"\n"s), "next\0"s) << line;
        EXPECT_EQ(Find("\"v\"=\"before\"\n"s + line), "before\0"s) << line;
    }
}

TEST(HasValuesTest, OnlyValuesCount) {
    EXPECT_TRUE(HasValues("#time=1\n@=\"\"\n"));
    EXPECT_FALSE(HasValues("#time=1\n#link\n\n; a comment\n"));
    EXPECT_FALSE(HasValues(""));
}

}  // namespace
}  // namespace marlo::platform
