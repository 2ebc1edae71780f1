#include "core/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "platform/AnsiCodePage.h"
#include "platform/Ascii.h"

namespace marlo {

namespace {

/// A stretch of lower-case letters and where their upper-case forms are.
struct CaseRange {
    char32_t first;
    char32_t last;
    int step;    ///< 1: every character is a small letter; 2: every second one, from `first` on
    int offset;  ///< from a small letter to its capital
};

constexpr std::array kCaseRanges = {
    CaseRange{'a', 'z', 1, -32},      CaseRange{0xE0, 0xF6, 1, -32},
    CaseRange{0xF8, 0xFE, 1, -32},    CaseRange{0xFF, 0xFF, 1, 121},
    CaseRange{0x101, 0x12F, 2, -1},   CaseRange{0x133, 0x137, 2, -1},
    CaseRange{0x13A, 0x148, 2, -1},   CaseRange{0x14B, 0x177, 2, -1},
    CaseRange{0x17A, 0x17E, 2, -1},   CaseRange{0x192, 0x192, 1, -1},
    CaseRange{0x1A1, 0x1A5, 2, -1},   CaseRange{0x1B0, 0x1B0, 1, -1},
    CaseRange{0x1CE, 0x1DC, 2, -1},   CaseRange{0x1DF, 0x1EF, 2, -1},
    CaseRange{0x1F9, 0x21F, 2, -1},   CaseRange{0x223, 0x233, 2, -1},
    CaseRange{0x3AC, 0x3AC, 1, -38},  CaseRange{0x3AD, 0x3AF, 1, -37},
    CaseRange{0x3B1, 0x3C1, 1, -32},  CaseRange{0x3C2, 0x3C2, 1, -31},
    CaseRange{0x3C3, 0x3CB, 1, -32},  CaseRange{0x3CC, 0x3CC, 1, -64},
    CaseRange{0x3CD, 0x3CE, 1, -63},  CaseRange{0x430, 0x44F, 1, -32},
    CaseRange{0x450, 0x45F, 1, -80},  CaseRange{0x461, 0x481, 2, -1},
    CaseRange{0x48B, 0x4BF, 2, -1},   CaseRange{0x4C2, 0x4CE, 2, -1},
    CaseRange{0x4CF, 0x4CF, 1, -15},  CaseRange{0x4D1, 0x52F, 2, -1},
    CaseRange{0x561, 0x586, 1, -48},  CaseRange{0x1E01, 0x1E95, 2, -1},
    CaseRange{0x1EA1, 0x1EFF, 2, -1},
};

}  // namespace

std::u32string Decode(std::string_view field) {
    auto decoded = platform::DecodeUtf8(field);
    return decoded ? std::move(*decoded) : platform::DecodeAnsi(field);
}

char32_t UpperCase(char32_t character) {
    const auto* const range =
        std::lower_bound(kCaseRanges.begin(), kCaseRanges.end(), character,
                         [](const CaseRange& candidate, char32_t c) { return candidate.last < c; });
    if (range == kCaseRanges.end() || character < range->first)
        return character;
    if ((character - range->first) % static_cast<char32_t>(range->step) != 0)
        return character;
    return static_cast<char32_t>(static_cast<int>(character) + range->offset);
}

std::u32string UpperCase(std::u32string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char32_t character) { return UpperCase(character); });
    return text;
}

std::string UpperCaseUtf8(std::string_view field) {
    std::string upper(field);
    bool isAscii = true;
    for (char& c : upper) {
        isAscii = isAscii && static_cast<unsigned char>(c) < 0x80;
        c = platform::UpperAscii(c);
    }
    return isAscii ? upper : EncodeUtf8(UpperCase(Decode(field)));
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
    return UpperCaseUtf8(left) == UpperCaseUtf8(right);
}

std::string_view TrimSpaces(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

double LeadingNumber(std::string_view text) {
    const std::string_view trimmed = TrimSpaces(text);
    // "inf" and "nan" are numbers too, to who asks for one.
    if (trimmed.find_first_of("0123456789") > trimmed.find_first_not_of("-."))
        return 0;
    double number = 0;
    std::from_chars(trimmed.data(), trimmed.data() + trimmed.size(), number,
                    std::chars_format::fixed);
    return number;
}

}  // namespace marlo
