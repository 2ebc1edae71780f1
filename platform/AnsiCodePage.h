#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace marlo::platform {

/// Decodes text in the system's ANSI code page (Windows-1252 where the system has none). Every
/// byte string decodes: a byte without a character in the page stands for the code point of its
/// own number.
std::u32string DecodeAnsi(std::string_view text);

/// The byte string that `DecodeAnsi` decodes to `text`; nothing when a character has no byte.
std::optional<std::string> EncodeAnsi(std::u32string_view text);

}  // namespace marlo::platform
