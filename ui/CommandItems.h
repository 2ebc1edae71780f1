#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace marlo {

/// The panes of the main window that hold command items.
enum class Pane { Menu, Right };

/// What a click on a command item does.
enum class Command {
    SearchProjects,
    FindInstalled,
    ShowReport,
    OpenResults,
    ShowOptions,
    ShowHelp,
    ShowAbout,
    ToggleSearchMode,
    Cancel
};

/// A command item of the main window. Lengths are in twips, from the window's left and top.
struct CommandItem {
    const char* caption;
    Command command;
    const char* argument;      ///< the kind of a report, or the name of a result file; else ""
    bool needsResultFiles;     ///< possible only when every result file is there
    bool hasWindowBackground;  ///< else the pane's picture shows behind it
    Pane pane;
    std::int32_t left;
    std::int32_t top;
};

inline constexpr std::int32_t kCommandItemHeight = 195;
inline constexpr std::int32_t kCommandItemWidth = 2040;

inline constexpr std::size_t kCommandItemCount = 13;
inline constexpr std::size_t kSearchItem = 0;
inline constexpr std::size_t kInventoryItem = 1;
inline constexpr std::size_t kUnusedReportItem = 2;
inline constexpr std::size_t kUsedReportItem = 3;
inline constexpr std::size_t kInstalledReportItem = 4;
inline constexpr std::size_t kUninstalledReportItem = 5;
inline constexpr std::size_t kProjectPluginsFileItem = 6;
inline constexpr std::size_t kInstalledPluginsFileItem = 7;
inline constexpr std::size_t kOptionsItem = 8;
inline constexpr std::size_t kHelpItem = 9;
inline constexpr std::size_t kAboutItem = 10;
inline constexpr std::size_t kSearchModeItem = 11;
inline constexpr std::size_t kCancelItem = 12;

/// The command items by their index. Start-up, enabling, dispatch, layout and hover marks go by
/// this table.
extern const std::array<CommandItem, kCommandItemCount> kCommandItems;

}  // namespace marlo
