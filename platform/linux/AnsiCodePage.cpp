#include "platform/AnsiCodePage.h"

#include <algorithm>
#include <array>

namespace marlo::platform {

namespace {

/// Windows-1252 differs from Latin-1 in the bytes 0x80 to 0x9F only.
constexpr unsigned char kFirstSpecial = 0x80;
constexpr std::array<char32_t, 32> kSpecial = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

std::optional<char> ByteOf(char32_t character) {
    const auto* const special = std::find(kSpecial.begin(), kSpecial.end(), character);
    if (special != kSpecial.end())
        return static_cast<char>(kFirstSpecial + (special - kSpecial.begin()));
    const bool isSpecialByte =
        character >= kFirstSpecial && character < kFirstSpecial + kSpecial.size();
    if (isSpecialByte || character > 0xFF)
        return std::nullopt;
    return static_cast<char>(character);
}

}  // namespace

std::u32string DecodeAnsi(std::string_view text) {
    std::u32string decoded;
    decoded.reserve(text.size());
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool special = byte >= kFirstSpecial && byte < kFirstSpecial + kSpecial.size();
        decoded += special ? kSpecial.at(byte - kFirstSpecial) : byte;
    }
    return decoded;
}

std::optional<std::string> EncodeAnsi(std::u32string_view text) {
    std::string encoded;
    encoded.reserve(text.size());
    for (const char32_t character : text) {
        const auto byte = ByteOf(character);
        if (!byte)
            return std::nullopt;
        encoded += *byte;
    }
    return encoded;
}

}  // namespace marlo::platform
