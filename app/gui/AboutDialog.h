#pragma once

#include <string>
#include <wx/dialog.h>

namespace marlo::gui {

/// The About box, centred over the main window.
class AboutDialog final : public wxDialog {
  public:
    /// @param picture the path of the decorative picture.
    AboutDialog(wxWindow* mainWindow, const std::string& picture);
};

}  // namespace marlo::gui
