#pragma once

#include <string>

#include "core/Application.h"
#include "platform/Desktop.h"

namespace marlo {

/// A place in a window where a program's icon is shown.
class PictureBox {
  public:
    virtual ~PictureBox() = default;

    /// Takes the picture away.
    virtual void Clear() = 0;
    /// Draws an icon at the left top corner, over what is there.
    virtual void Draw(const platform::ShellIcon& icon) = 0;
};

/// Shows the small icon that the desktop has for a file in place of what the box shows. Where the
/// desktop has none, the box stays as it is. A failure is logged under
/// "FileBrowser:StripTerminator", a text that users' logs have always had.
void DrawSmallIcon(const Application& application, const std::string& path, PictureBox& box);

/// Shows the icon of the program for CSV files in both boxes of the main window, one after the
/// other. A failure is logged under "LoadCsvAppIcons".
void LoadCsvAppIcons(const Application& application, const std::string& path, PictureBox& first,
                     PictureBox& second);

}  // namespace marlo
