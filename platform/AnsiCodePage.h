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

/// A name that comes from Unicode (UTF-8), such as a file's, as the program writes names: in the
/// ANSI code page when every character is in it, else as it is. Bytes that are not UTF-8 stay.
std::string NameFromUtf8(std::string_view name);

/// A byte string of the program as UTF-8: as it is where it is UTF-8, else decoded from the ANSI
/// code page. A few names from `NameFromUtf8` look like UTF-8 in the code page and do not come
/// back.
std::string Utf8FromName(std::string_view name);

}  // namespace marlo::platform
