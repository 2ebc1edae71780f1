#pragma once

#include <string>

class wxTopLevelWindow;

namespace marlo::gui {

/// Gives a window its large and its small icon from an icon file. A file that is not there gives no
/// icon.
void ShowProgramIcon(wxTopLevelWindow& window, const std::string& path);

}  // namespace marlo::gui
