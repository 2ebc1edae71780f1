#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace marlo {

/// The bytes of a cell that a list shows at most. Names and paths have fewer; a damaged or hostile
/// file may hold one of many megabytes, which would keep the window from being painted.
inline constexpr std::size_t kMostCellLength = 1000;

/// The beginning of a field that a list shows. No character is cut in two.
std::string_view ShownPart(std::string_view field);

/// Whether a character shows as a blank, since it would end the line or the text.
bool IsShownAsBlank(char32_t character);

/// What a list shows of a field, as UTF-8: one line, with "…" for what is cut off.
std::string CellText(std::string_view field);

}  // namespace marlo
