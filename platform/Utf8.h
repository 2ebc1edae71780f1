#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace marlo::platform {

/// Whether a byte of UTF-8 continues a character rather than beginning one.
constexpr bool ContinuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The characters of a text; nothing when it is not UTF-8. Forms that are longer than needed and
/// halves of surrogate pairs are not.
std::optional<std::u32string> DecodeUtf8(std::string_view text);

/// Characters as UTF-8.
std::string EncodeUtf8(std::u32string_view text);

/// Adds a character to `text`.
void AppendUtf8(std::string& text, char32_t character);

/// Takes the first character off `text`, which is not empty. A byte that is not part of UTF-8
/// stands for itself.
char32_t TakeCharacter(std::string_view& text);

/// Whether all of `text` is UTF-8; an empty text is.
bool IsUtf8(std::string_view text);

}  // namespace marlo::platform
