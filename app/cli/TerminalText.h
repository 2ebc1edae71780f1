#pragma once

#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

namespace marlo::cli {

/// A field for a person to read, as UTF-8 (see core/Text.h). Whatever could move the cursor, start
/// an escape sequence, break the line or turn the writing direction is shown as `\n`, `\xNN` or
/// `\u{N}` instead, so that no name from a file can act on the terminal.
std::string Printable(std::string_view field);

/// How many cells of a terminal `printable` takes; `printable` comes from `Printable`.
int DisplayWidth(std::string_view printable);

/// `printable` cut to at most `width` cells, with "…" for what was cut off. That is the end, but of
/// a path the beginning.
std::string FitToWidth(std::string_view printable, int width);

/// `value` as indented JSON text, a line end after it. The characters that `Printable` replaces
/// are escaped, which means the same to a reader of JSON.
std::string JsonText(const nlohmann::ordered_json& value);

}  // namespace marlo::cli
