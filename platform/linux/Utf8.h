#pragma once

#include <string>
#include <string_view>

namespace marlo::platform {

/// Adds a character to `text`.
void AppendUtf8(std::string& text, char32_t character);

/// Takes the first character off `text`, which is not empty. A byte that is not part of UTF-8
/// stands for itself.
char32_t TakeCharacter(std::string_view& text);

/// Whether all of `text` is UTF-8; an empty text is.
bool IsUtf8(std::string_view text);

}  // namespace marlo::platform
