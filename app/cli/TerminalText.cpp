#include "app/cli/TerminalText.h"

#include <array>
#include <cstdio>
#include <utf8proc.h>

#include <nlohmann/json.hpp>

#include "core/Text.h"

namespace marlo::cli {

namespace {

const std::string kEllipsis = "…";

bool IsInert(char32_t character) {
    switch (utf8proc_category(static_cast<utf8proc_int32_t>(character))) {
        case UTF8PROC_CATEGORY_CC:
        case UTF8PROC_CATEGORY_CF:
        case UTF8PROC_CATEGORY_CS:
        case UTF8PROC_CATEGORY_ZL:
        case UTF8PROC_CATEGORY_ZP:
            return false;
        default:
            return true;
    }
}

template <class... Values>
std::u32string Format(const char* format, Values... values) {
    std::array<char, 16> text{};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the callers' formats are constants.
    const int length = std::snprintf(text.data(), text.size(), format, values...);
    return {text.data(), text.data() + length};
}

std::u32string EscapedForReading(char32_t character) {
    if (character == '\n')
        return U"\\n";
    if (character == '\r')
        return U"\\r";
    if (character == '\t')
        return U"\\t";
    return Format(character < 0x100 ? "\\x%02X" : "\\u{%X}", static_cast<unsigned>(character));
}

std::u32string EscapedForJson(char32_t character) {
    const auto code = static_cast<unsigned>(character);
    if (code < 0x10000)
        return Format("\\u%04x", code);
    const unsigned offset = code - 0x10000;
    return Format("\\u%04x\\u%04x", 0xD800 + (offset >> 10U), 0xDC00 + (offset & 0x3FFU));
}

int CellsOf(char32_t character) {
    return utf8proc_charwidth(static_cast<utf8proc_int32_t>(character));
}

int CellsOf(const std::u32string& text) {
    int width = 0;
    for (const char32_t character : text)
        width += CellsOf(character);
    return width;
}

std::u32string_view StartThatFits(std::u32string_view text, int width) {
    std::size_t length = 0;
    while (length < text.size() && (width -= CellsOf(text[length])) >= 0)
        ++length;
    return text.substr(0, length);
}

std::u32string_view EndThatFits(std::u32string_view text, int width) {
    std::size_t start = text.size();
    while (start > 0 && (width -= CellsOf(text[start - 1])) >= 0)
        --start;
    return text.substr(start);
}

}  // namespace

std::string Printable(std::string_view field) {
    std::u32string printable;
    for (const char32_t character : Decode(field)) {
        if (IsInert(character))
            printable += character;
        else
            printable += EscapedForReading(character);
    }
    return EncodeUtf8(printable);
}

std::string PrintableLines(std::string_view lines) {
    std::string printable;
    for (std::size_t end = lines.find('\n'); end != std::string_view::npos;
         end = lines.find('\n')) {
        printable += Printable(lines.substr(0, end)) + '\n';
        lines.remove_prefix(end + 1);
    }
    return printable + Printable(lines);
}

int DisplayWidth(std::string_view printable) {
    return CellsOf(Decode(printable));
}

std::string FitToWidth(std::string_view printable, int width) {
    const std::u32string text = Decode(printable);
    if (CellsOf(text) <= width)
        return std::string(printable);
    const bool isPath = text.find_first_of(U"/\\") != std::u32string::npos;
    const int available = width - 1;  // the ellipsis takes one
    return isPath ? kEllipsis + EncodeUtf8(EndThatFits(text, available))
                  : EncodeUtf8(StartThatFits(text, available)) + kEllipsis;
}

std::string JsonText(std::string_view field) {
    std::u32string inert;
    for (const char32_t character : Decode(nlohmann::json(DecodeToUtf8(field)).dump())) {
        if (IsInert(character))
            inert += character;
        else
            inert += EscapedForJson(character);
    }
    return EncodeUtf8(inert);
}

}  // namespace marlo::cli
