#pragma once

#include <string>
#include <string_view>

namespace marlo::cli {

/// A field for a person to read, as UTF-8 (see core/Text.h). Whatever could move the cursor, start
/// an escape sequence, break the line or turn the writing direction is shown as `\n`, `\xNN` or
/// `\u{N}` instead, so that no name from a file can act on the terminal.
std::string Printable(std::string_view field);

/// Lines for a person to read, each as `Printable` has it; the line ends stay.
std::string PrintableLines(std::string_view lines);

/// How many cells of a terminal `printable` takes; `printable` comes from `Printable`.
int DisplayWidth(std::string_view printable);

/// `printable` cut to at most `width` cells, with "…" for what was cut off. That is the end, but of
/// a path the beginning.
std::string FitToWidth(std::string_view printable, int width);

/// A field as a JSON string, with its quotes (see core/Text.h). The characters that `Printable`
/// replaces are escaped, which means the same to a reader of JSON.
std::string JsonText(std::string_view field);

}  // namespace marlo::cli
