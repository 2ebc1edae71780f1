#pragma once

#include <string>
#include <utility>
#include <wx/bitmap.h>

class wxWindow;

namespace marlo::gui {

/// The full path of one of the program's pictures, by its name in "icons": under the application
/// folder, or where the program's files are when that has none.
std::string PicturePath(const std::string& applicationFolder, const std::string& name);

/// A picture file in a size, sharp on the window's screen; invalid when there is no such file, or
/// no such size.
/// @param size in the window's pixels.
wxBitmap LoadPicture(const wxWindow& window, const std::string& path, const wxSize& size);

/// A picture file that is kept as large as the window that shows it.
class FittedPicture {
  public:
    explicit FittedPicture(std::string path) : path_(std::move(path)) {}

    /// The picture, which is loaded when the window's size on its screen is not what it was before.
    const wxBitmap& In(const wxWindow& window);

  private:
    std::string path_;
    wxBitmap bitmap_;
    wxSize loadedFor_;  ///< in dots of the screen
};

}  // namespace marlo::gui
