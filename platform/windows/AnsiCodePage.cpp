#include "platform/AnsiCodePage.h"

#include <array>
#include <cwchar>

#include "platform/windows/System.h"

namespace marlo::platform {

namespace {

/// The code page of the system's locale. The program's own one may be UTF-8, which the names in
/// projects are not written in.
UINT SystemCodePage() {
    static const UINT page = [] {
        std::array<wchar_t, 8> text{};
        GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE, text.data(),
                       static_cast<int>(text.size()));
        const unsigned long number = std::wcstoul(text.data(), nullptr, 10);
        constexpr UINT western = 1252;  // where a locale has Unicode only
        return number == 0 ? western : static_cast<UINT>(number);
    }();
    return page;
}

/// Text in the system's code page; empty when it has a byte without a character.
std::wstring Utf16(std::string_view text) {
    const auto length = static_cast<int>(text.size());
    const auto convert = [&](wchar_t* to, int size) {
        return MultiByteToWideChar(SystemCodePage(), MB_ERR_INVALID_CHARS, text.data(), length, to,
                                   size);
    };
    std::wstring wide(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
    convert(wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::u32string CharactersOf(std::wstring_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t character = text[i];
        const bool isPair = i + 1 < text.size() && IS_SURROGATE_PAIR(text[i], text[i + 1]);
        if (isPair)
            character = 0x10000 + ((character - 0xD800) << 10) + (text[++i] - 0xDC00U);
        characters += character;
    }
    return characters;
}

std::wstring Utf16Of(std::u32string_view characters) {
    std::wstring text;
    text.reserve(characters.size());
    for (const char32_t character : characters) {
        if (character < 0x10000) {
            text += static_cast<wchar_t>(character);
            continue;
        }
        text += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
        text += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
    return text;
}

/// Text in the system's code page; nothing when a character is not in it. One that only looks like
/// a character of the page does not count.
std::optional<std::string> InSystemCodePage(std::wstring_view text) {
    if (text.empty())
        return "";
    const auto length = static_cast<int>(text.size());
    BOOL isReplaced = FALSE;
    const int size = WideCharToMultiByte(SystemCodePage(), WC_NO_BEST_FIT_CHARS, text.data(),
                                         length, nullptr, 0, nullptr, &isReplaced);
    if (size == 0 || isReplaced != FALSE)
        return std::nullopt;
    std::string encoded(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(SystemCodePage(), WC_NO_BEST_FIT_CHARS, text.data(), length, encoded.data(),
                        size, nullptr, nullptr);
    return encoded;
}

}  // namespace

std::u32string DecodeAnsi(std::string_view text) {
    std::wstring wide = Utf16(text);
    if (!wide.empty() || text.empty())
        return CharactersOf(wide);
    std::u32string characters;
    characters.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = i + 1 < text.size() &&
                            IsDBCSLeadByteEx(SystemCodePage(), static_cast<BYTE>(text[i])) != FALSE;
        wide = Utf16(text.substr(i, isPair ? 2 : 1));
        if (wide.empty()) {
            characters += static_cast<unsigned char>(text[i]);
            continue;
        }
        characters += CharactersOf(wide);
        i += isPair ? 1 : 0;
    }
    return characters;
}

std::optional<std::string> EncodeAnsi(std::u32string_view text) {
    if (auto whole = InSystemCodePage(Utf16Of(text)))
        return whole;
    std::string encoded;
    for (const char32_t character : text) {
        const auto bytes = InSystemCodePage(Utf16Of({&character, 1}));
        if (bytes)
            encoded += *bytes;
        else if (character < 0x100 && DecodeAnsi(std::string(1, static_cast<char>(character))) ==
                                          std::u32string(1, character))
            encoded += static_cast<char>(character);  // a byte that has no character of its own
        else
            return std::nullopt;
    }
    return encoded;
}

}  // namespace marlo::platform
