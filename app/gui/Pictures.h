#pragma once

#include <string>
#include <wx/bitmap.h>

class wxWindow;

namespace marlo::gui {

/// The full path of one of the program's pictures, by its name in "icons": under the application
/// folder, or beside the program where that has none.
std::string PicturePath(const std::string& applicationFolder, const std::string& name);

/// A picture file in a size, sharp on the window's screen; invalid when there is no such file, or
/// no such size.
/// @param size in the window's pixels.
wxBitmap LoadPicture(const wxWindow& window, const std::string& path, const wxSize& size);

}  // namespace marlo::gui
