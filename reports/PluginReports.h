#pragma once

#include <cstdint>
#include <string_view>

#include "reports/ResultPane.h"

namespace marlo {

// The four reports. Each adds a row a plug-in to `lstSongs`, with the plug-in's name as its text,
// and leaves out what would give a row with a key that is there already.
//
// A column's index is 1-based, and only looked at where the settings let the report fill that
// column. A failure is logged under the routine's name, unless it says otherwise, and told to the
// user; the rows added before it stay. A malformed line is logged once, when it is read.

/// What stands in the place of a path that there is not.
inline constexpr std::string_view kNotInstalled = "!Not Installed!";

/// The installed plug-ins, from "\resultfiles\installedplugins.csv": their type, and the path of a
/// VST one. DirectX ones are left out where the settings ignore them. A list without rows gets the
/// row "No plugins found".
void ShowAllPlugins(ResultPane& pane, std::int16_t typeColumn, std::int16_t pathColumn);

/// The used plug-ins, from "\resultfiles\tln.csv": their type and state, and where a VST one is
/// installed, by name and type. One that is not installed is greyed and has `kNotInstalled` for its
/// path. A list without rows gets the row "No plugins found".
void ShowUsedPlugins(ResultPane& pane, std::int16_t typeColumn, std::int16_t pathColumn,
                     std::int16_t statusColumn);

/// The installed plug-ins, as in `ShowAllPlugins`, that no use in "\resultfiles\tln.csv" has the
/// name and type of. Uses that are off do not count where the settings ignore them. A list without
/// rows gets the row "No plugins found".
void ShowUnusedPlugins(ResultPane& pane, std::int16_t typeColumn, std::int16_t pathColumn);

/// The used plug-ins, from "\resultfiles\tln.csv", whose name no installed one has, whatever its
/// type: their type and state. The list may stay without rows. A failure is logged under
/// "ShowUnusedPlugins".
void ShowUninstalledPlugins(ResultPane& pane, std::int16_t typeColumn, std::int16_t statusColumn);

}  // namespace marlo
