#include "platform/linux/Utf8.h"

#include <algorithm>
#include <array>
#include <utf8proc.h>

namespace marlo::platform {

namespace {

/// Decodes the first character of `text`.
/// @param code untouched when this is not UTF-8.
/// @return the character's length in bytes; not above 0 when this is not UTF-8.
utf8proc_ssize_t Decode(std::string_view text, utf8proc_int32_t& code) {
    utf8proc_int32_t decoded = 0;
    const auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                         static_cast<utf8proc_ssize_t>(text.size()), &decoded);
    if (length > 0)
        code = decoded;
    return length;
}

}  // namespace

void AppendUtf8(std::string& text, char32_t character) {
    std::array<utf8proc_uint8_t, 4> bytes{};
    const auto length =
        utf8proc_encode_char(static_cast<utf8proc_int32_t>(character), bytes.data());
    text.append(bytes.begin(), bytes.begin() + length);
}

char32_t TakeCharacter(std::string_view& text) {
    auto code = static_cast<utf8proc_int32_t>(static_cast<unsigned char>(text.front()));
    const auto length = code < 0x80 ? 1 : Decode(text, code);
    text.remove_prefix(static_cast<std::size_t>(std::max<utf8proc_ssize_t>(length, 1)));
    return static_cast<char32_t>(code);
}

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        utf8proc_int32_t code = 0;
        const auto length = Decode(text, code);
        if (length <= 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(length));
    }
    return true;
}

}  // namespace marlo::platform
