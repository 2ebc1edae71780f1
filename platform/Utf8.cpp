#include "platform/Utf8.h"

#include <cstddef>

namespace marlo::platform {

namespace {

struct Utf8Form {
    std::size_t length = 0;     ///< bytes
    char32_t leadBits = 0;      ///< the first byte's share of the character
    char32_t smallestCode = 0;  ///< below it, the form would be longer than needed
};

std::optional<Utf8Form> FormOf(unsigned char lead) {
    if (lead < 0x80)
        return Utf8Form{1, lead, 0};
    if ((lead & 0xE0U) == 0xC0)
        return Utf8Form{2, lead & 0x1FU, 0x80};
    if ((lead & 0xF0U) == 0xE0)
        return Utf8Form{3, lead & 0x0FU, 0x800};
    if ((lead & 0xF8U) == 0xF0)
        return Utf8Form{4, lead & 0x07U, 0x10000};
    return std::nullopt;
}

bool IsScalarValue(char32_t code) {
    return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

/// Takes the first character off `text`, which is not empty; leaves it when that is not UTF-8.
std::optional<char32_t> TakeWhole(std::string_view& text) {
    const auto form = FormOf(static_cast<unsigned char>(text.front()));
    if (!form || text.size() < form->length)
        return std::nullopt;
    char32_t code = form->leadBits;
    for (std::size_t i = 1; i < form->length; ++i) {
        if (!ContinuesCharacter(text[i]))
            return std::nullopt;
        code = (code << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    if (code < form->smallestCode || !IsScalarValue(code))
        return std::nullopt;
    text.remove_prefix(form->length);
    return code;
}

}  // namespace

std::optional<std::u32string> DecodeUtf8(std::string_view text) {
    std::u32string decoded;
    decoded.reserve(text.size());
    while (!text.empty()) {
        const auto character = TakeWhole(text);
        if (!character)
            return std::nullopt;
        decoded += *character;
    }
    return decoded;
}

std::string EncodeUtf8(std::u32string_view text) {
    std::string encoded;
    encoded.reserve(text.size());
    for (const char32_t character : text)
        AppendUtf8(encoded, character);
    return encoded;
}

void AppendUtf8(std::string& text, char32_t character) {
    const auto append = [&](char32_t byte) { text += static_cast<char>(byte); };
    const auto appendRest = [&](unsigned shift) { append(0x80U | ((character >> shift) & 0x3FU)); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0U | (character >> 6U));
        appendRest(0);
    } else if (character < 0x10000) {
        append(0xE0U | (character >> 12U));
        appendRest(6);
        appendRest(0);
    } else {
        append(0xF0U | (character >> 18U));
        appendRest(12);
        appendRest(6);
        appendRest(0);
    }
}

char32_t TakeCharacter(std::string_view& text) {
    const char first = text.front();
    if (const auto character = TakeWhole(text))
        return *character;
    text.remove_prefix(1);
    return static_cast<unsigned char>(first);
}

bool IsUtf8(std::string_view text) {
    while (!text.empty())
        if (!TakeWhole(text))
            return false;
    return true;
}

}  // namespace marlo::platform
