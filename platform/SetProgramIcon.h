#pragma once

#include <string>

namespace marlo::platform {

/// Gives a window the large and the small icon in an icon file, on a system where both are set by
/// the program. A file that is not there gives no icon.
/// @param window the system's own handle of it.
/// @param alsoOwner whether the last window of its chain of owners gets them too.
void SetProgramIcon(void* window, const std::string& path, bool alsoOwner);

}  // namespace marlo::platform
