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

}  // namespace
}  // namespace marlo::platform
