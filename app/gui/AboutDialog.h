#pragma once

#include <string>
#include <wx/dialog.h>

#include "dialogs/frmAbout.h"

class wxButton;

namespace marlo::gui {

/// The About box, centred over the main window as far as the window manager allows.
class AboutDialog final : public wxDialog {
  public:
    /// @param picture the path of the decorative picture.
    AboutDialog(wxWindow* mainWindow, const std::string& picture);

  private:
    wxSizer* CreateTexts(const frmAbout& about);
    void AddPicture(wxSizer* row, const std::string& path);
    wxButton* CreateOkButton();
    void StayCentred();
    void CentreOverWindow();
    int Pixels(int designPixels) const;

    wxPoint centre_;  ///< where it was put last
};

}  // namespace marlo::gui
