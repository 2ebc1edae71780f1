#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace marlo::platform {

// The text form of keys and values in the registry files of a Wine prefix.

/// Replaces the escapes in `text`, UTF-16 units among them, up to an unescaped `end`, by UTF-8.
/// A surrogate without its partner becomes U+FFFD. Bytes beyond ASCII, which Wine does not write,
/// stay as they are. The result is never longer than what it stands for.
/// @param text receives what is left from `end` on; nothing is left when there is no `end`.
std::string Unescape(std::string_view& text, char end);

/// Compares two paths (or names) in the registry's own order, without regard to case. The steps of
/// a path, which are separated by "\", are compared one by one.
/// @return below, at or above 0 as `left` comes before, is or comes after `right`.
int CompareNames(std::string_view left, std::string_view right);

/// The first `depth` steps of a path.
std::string_view Head(std::string_view path, std::size_t depth);

/// How many steps a path has; "" has none.
std::size_t Depth(std::string_view path);

/// What of `path` lies below `top`, without regard to case; nothing when `path` leads elsewhere.
std::optional<std::string_view> RestBelow(std::string_view path, std::string_view top);

/// UTF-16, low bytes first, as UTF-8. An odd last byte is left out.
std::string Utf8FromUtf16(const std::vector<unsigned char>& bytes);

struct WineValue {
    std::int32_t type = 0;
    std::vector<unsigned char> data;  ///< texts as the program's bytes, with their final NUL
};

/// Finds a value in the lines of a key, which are skipped where they are malformed or cut short.
/// @param lines the lines after the key's own line.
/// @param name UTF-8.
std::optional<WineValue> FindValue(std::string_view lines, std::string_view name);

/// Whether the lines of a key have any value.
bool HasValues(std::string_view lines);

}  // namespace marlo::platform
