#pragma once

#include <string>
#include <string_view>

namespace marlo::platform {

/// A letter of ASCII in upper case; any other byte as it is, whatever the locale.
constexpr char UpperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// `text` with its letters of ASCII in upper case.
inline std::string UpperAscii(std::string_view text) {
    std::string upper(text);
    for (char& c : upper)
        c = UpperAscii(c);
    return upper;
}

}  // namespace marlo::platform
