#include "platform/linux/WineRegistryText.h"

#include <algorithm>
#include <charconv>
#include <utf8proc.h>
#include <utility>

#include "platform/AnsiCodePage.h"
#include "platform/Registry.h"
#include "platform/Utf8.h"

namespace marlo::platform {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char kPathSeparator = '\\';

/// Collects UTF-16 units as UTF-8.
class UnitWriter {
  public:
    void Add(char32_t unit) {
        const bool isHigh = unit >= 0xD800 && unit <= 0xDBFF;
        const bool isLow = unit >= 0xDC00 && unit <= 0xDFFF;
        if (isLow && high_ != 0) {
            AppendUtf8(text_, 0x10000 + ((high_ - 0xD800) << 10U) + (unit - 0xDC00));
            high_ = 0;
            return;
        }
        EndPair();
        if (isHigh)
            high_ = unit;
        else
            AppendUtf8(text_, isLow ? kReplacement : unit);
    }

    /// Adds a byte as it is.
    void AddByte(char byte) {
        EndPair();
        text_ += byte;
    }

    std::string Finish() {
        EndPair();
        return std::move(text_);
    }

  private:
    void EndPair() {
        if (high_ != 0)
            AppendUtf8(text_, kReplacement);
        high_ = 0;
    }

    std::string text_;
    char32_t high_ = 0;
};

/// Takes a number of at most `maxDigits` digits off `text`.
std::optional<std::uint32_t> TakeNumber(std::string_view& text, std::size_t maxDigits, int base) {
    std::uint32_t number = 0;
    const char* const start = text.data();
    const auto end = std::from_chars(start, start + std::min(text.size(), maxDigits), number, base);
    if (end.ec != std::errc())
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end.ptr - start));
    return number;
}

/// Takes what follows a backslash off `text`, which is not empty.
char32_t TakeEscape(std::string_view& text) {
    const char letter = text.front();
    if (letter >= '0' && letter <= '7')
        return *TakeNumber(text, 3, 8);
    text.remove_prefix(1);
    switch (letter) {
        case 'a':
            return '\a';
        case 'b':
            return '\b';
        case 'e':
            return 0x1B;
        case 'f':
            return '\f';
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 't':
            return '\t';
        case 'v':
            return '\v';
        case 'x':
            return TakeNumber(text, 4, 16).value_or('x');
        default:
            return static_cast<unsigned char>(letter);
    }
}

/// Takes a line off `text`, without its line end.
std::string_view TakeLine(std::string_view& text) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

bool TakeWord(std::string_view& text, std::string_view word) {
    if (!text.starts_with(word))
        return false;
    text.remove_prefix(word.size());
    return true;
}

/// Takes `(N):` or `:` off `text`, what stands between a value's kind and its data.
std::optional<std::int32_t> TakeType(std::string_view& text, std::int32_t usualType) {
    std::int32_t type = usualType;
    if (TakeWord(text, "(")) {
        const auto number = TakeNumber(text, 8, 16);
        if (!number || !TakeWord(text, ")"))
            return std::nullopt;
        type = static_cast<std::int32_t>(*number);
    }
    return TakeWord(text, ":") ? std::optional(type) : std::nullopt;
}

bool IsText(std::int32_t type) {
    return type == registry_type::kString || type == registry_type::kExpandString ||
           type == registry_type::kMultiString;
}

std::vector<unsigned char> NameBytes(std::string_view utf8) {
    const std::string name = NameFromUtf8(utf8);
    return {name.begin(), name.end()};
}

std::optional<WineValue> ParseString(std::string_view text, std::int32_t type) {
    if (!TakeWord(text, "\""))
        return std::nullopt;
    std::string utf8 = Unescape(text, '"');
    if (text.empty())
        return std::nullopt;
    utf8 += '\0';
    return WineValue{type, NameBytes(utf8)};
}

std::optional<WineValue> ParseDword(std::string_view text) {
    constexpr std::size_t digits = 8;
    if (text.size() != digits)
        return std::nullopt;
    const auto number = TakeNumber(text, digits, 16);
    if (!number || !text.empty())
        return std::nullopt;
    WineValue value{registry_type::kDword, {}};
    for (unsigned shift = 0; shift < 32; shift += 8)
        value.data.push_back(static_cast<unsigned char>(*number >> shift));
    return value;
}

/// Bytes in hexadecimal, "02,00,\" with more in the next line.
std::optional<std::vector<unsigned char>> ParseHex(std::string_view text, std::string_view rest) {
    std::vector<unsigned char> bytes;
    if (text.empty())
        return bytes;
    for (;;) {
        if (text == "\\") {
            if (rest.empty())
                return std::nullopt;
            text = TakeLine(rest);
            text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
        }
        const std::string_view before = text;
        const auto byte = TakeNumber(text, 2, 16);
        if (!byte || before.size() - text.size() != 2)
            return std::nullopt;
        bytes.push_back(static_cast<unsigned char>(*byte));
        if (text.empty())
            return bytes;
        if (!TakeWord(text, ","))
            return std::nullopt;
    }
}

WineValue ValueOfBytes(std::int32_t type, std::vector<unsigned char> bytes) {
    return {type, IsText(type) ? NameBytes(Utf8FromUtf16(bytes)) : std::move(bytes)};
}

/// @param text what stands behind a value's "=".
/// @param rest the lines after it.
std::optional<WineValue> ParseValue(std::string_view text, std::string_view rest) {
    if (text.starts_with('"'))
        return ParseString(text, registry_type::kString);
    if (TakeWord(text, "dword:"))
        return ParseDword(text);
    if (TakeWord(text, "str")) {
        const auto type = TakeType(text, registry_type::kString);
        return type ? ParseString(text, *type) : std::nullopt;
    }
    if (TakeWord(text, "hex")) {
        const auto type = TakeType(text, registry_type::kBinary);
        auto bytes = type ? ParseHex(text, rest) : std::nullopt;
        if (bytes)
            return ValueOfBytes(*type, std::move(*bytes));
    }
    return std::nullopt;
}

/// Takes a value's name and its "=" off a line; nothing when the line has none.
std::optional<std::string> TakeName(std::string_view& line) {
    std::string name;
    if (TakeWord(line, "\"")) {
        name = Unescape(line, '"');
        if (!TakeWord(line, "\""))
            return std::nullopt;
    } else if (!TakeWord(line, "@")) {
        return std::nullopt;
    }
    return TakeWord(line, "=") ? std::optional(std::move(name)) : std::nullopt;
}

/// Whether a character of UTF-8 goes on at `position`.
bool IsContinuation(std::string_view text, std::size_t position) {
    return position < text.size() && ContinuesCharacter(text[position]);
}

/// A character's place in the registry's order. The separator comes first, so that what lies below
/// a key follows it at once.
char32_t Rank(char32_t character) {
    if (character == kPathSeparator)
        return 0;
    if (character >= 0x80)
        return static_cast<char32_t>(utf8proc_tolower(static_cast<utf8proc_int32_t>(character))) +
               1;
    return (character >= 'A' && character <= 'Z' ? character - 'A' + 'a' : character) + 1;
}

}  // namespace

std::string Unescape(std::string_view& text, char end) {
    UnitWriter written;
    while (!text.empty() && text.front() != end) {
        const char c = text.front();
        text.remove_prefix(1);
        if (c == '\\' && !text.empty())
            written.Add(TakeEscape(text));
        else
            written.AddByte(c);
    }
    return written.Finish();
}

int CompareNames(std::string_view left, std::string_view right) {
    // Neighbours in a file have most of their paths in common.
    const auto* const start = left.begin();
    const auto [difference, ignored] =
        std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    auto same = static_cast<std::size_t>(difference - start);
    while (same > 0 && IsContinuation(left, same))
        --same;
    left.remove_prefix(same);
    right.remove_prefix(same);
    while (!left.empty() && !right.empty()) {
        const char32_t leftRank = Rank(TakeCharacter(left));
        const char32_t rightRank = Rank(TakeCharacter(right));
        if (leftRank != rightRank)
            return leftRank < rightRank ? -1 : 1;
    }
    return static_cast<int>(!left.empty()) - static_cast<int>(!right.empty());
}

std::string_view Head(std::string_view path, std::size_t depth) {
    std::size_t end = 0;
    for (std::size_t start = 0; depth > 0 && start <= path.size(); --depth) {
        end = std::min(path.find(kPathSeparator, start), path.size());
        start = end + 1;
    }
    return path.substr(0, end);
}

std::size_t Depth(std::string_view path) {
    if (path.empty())
        return 0;
    return static_cast<std::size_t>(std::count(path.begin(), path.end(), kPathSeparator)) + 1;
}

std::optional<std::string_view> RestBelow(std::string_view path, std::string_view top) {
    if (top.empty())
        return path;
    const std::string_view head = Head(path, Depth(top));
    if (CompareNames(head, top) != 0)
        return std::nullopt;
    return path.substr(std::min(head.size() + 1, path.size()));
}

std::string Utf8FromUtf16(const std::vector<unsigned char>& bytes) {
    UnitWriter text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        text.Add(static_cast<char32_t>(bytes[i] | (bytes[i + 1] << 8U)));
    return text.Finish();
}

std::optional<WineValue> FindValue(std::string_view lines, std::string_view name) {
    std::optional<WineValue> found;
    while (!lines.empty()) {
        std::string_view line = TakeLine(lines);
        const auto lineName = TakeName(line);
        if (!lineName || CompareNames(*lineName, name) != 0)
            continue;
        if (auto value = ParseValue(line, lines))
            found = std::move(value);  // as in a registry, the last one written counts
    }
    return found;
}

bool HasValues(std::string_view lines) {
    while (!lines.empty()) {
        std::string_view line = TakeLine(lines);
        if (TakeName(line))
            return true;
    }
    return false;
}

}  // namespace marlo::platform
