#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace marlo {

/// What the cells of a column hold.
enum class Column : std::uint8_t { Project, Modified, Plugin, Type, Path, Status, Other };

/// The titles of the columns. The plug-ins of a report stand under the report's own title.
inline constexpr std::array kColumnTitles = {"Project", "Last Modified", "Plugin", "Type",
                                             "Path",    "Status",        ""};

constexpr const char* TitleOf(Column column) {
    return kColumnTitles.at(static_cast<std::size_t>(column));
}

}  // namespace marlo
