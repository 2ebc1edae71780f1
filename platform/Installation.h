#pragma once

#include <optional>
#include <string>

namespace marlo::platform {

// Where programs are that are installed apart from what their users keep, as on Unix systems. Where
// programs are not installed so, there are no such places.

/// PREFIX, when the running program is in the folder PREFIX/bin. Links that lead to the program do
/// not count.
std::optional<std::string> InstallPrefix();

/// The folder for what programs keep for this user: `XDG_DATA_HOME` when that is a path from the
/// root on, else ".local/share" in the user's home, which is `HOME`, or where that is not set, the
/// one that the system has for the user.
/// @return nothing when the user has no home.
std::optional<std::string> UserDataFolder();

}  // namespace marlo::platform
