#include <string>

#include <gtest/gtest.h>

#include "platform/AnsiCodePage.h"

namespace marlo::platform {
namespace {

TEST(AnsiCodePageTest, EveryByteComesBackAsItWas) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_EQ(EncodeAnsi(DecodeAnsi(bytes)), bytes);
}

TEST(AnsiCodePageTest, CharactersOfThePageHaveABytes) {
    EXPECT_EQ(EncodeAnsi(U"Réverb €™"), "R\xE9verb \x80\x99");
    EXPECT_EQ(EncodeAnsi(U""), "");
}

TEST(AnsiCodePageTest, ATextWithAnyOtherCharacterDoesNotFit) {
    EXPECT_FALSE(EncodeAnsi(U"Réverb 曲"));
    EXPECT_FALSE(EncodeAnsi(U"\x80")) << "the euro sign has its byte";
    EXPECT_FALSE(EncodeAnsi(U"\x100"));
}

TEST(NameTest, AUnicodeNameIsInThePageWhereItFits) {
    EXPECT_EQ(NameFromUtf8("Reverb"), "Reverb");
    EXPECT_EQ(NameFromUtf8("Réverb"), "R\xE9verb");
    EXPECT_EQ(NameFromUtf8("Réverb 曲"), "Réverb 曲");
}

TEST(NameTest, BytesThatAreNotUtf8Stay) {
    EXPECT_EQ(NameFromUtf8("R\xE9verb é"), "R\xE9verb é");
}

TEST(NameTest, ANameBecomesUtf8Again) {
    EXPECT_EQ(Utf8FromName("Reverb"), "Reverb");
    EXPECT_EQ(Utf8FromName("R\xE9verb"), "Réverb");
    EXPECT_EQ(Utf8FromName("Réverb 曲"), "Réverb 曲");
}

}  // namespace
}  // namespace marlo::platform
