#include "platform/AnsiCodePage.h"

#include <utility>

#include "platform/Utf8.h"

namespace marlo::platform {

std::string NameFromUtf8(std::string_view name) {
    const auto characters = DecodeUtf8(name);
    auto encoded = characters ? EncodeAnsi(*characters) : std::nullopt;
    return encoded ? std::move(*encoded) : std::string(name);
}

std::string Utf8FromName(std::string_view name) {
    return IsUtf8(name) ? std::string(name) : EncodeUtf8(DecodeAnsi(name));
}

}  // namespace marlo::platform
