#pragma once

#include <array>
#include <string>
#include <wx/font.h>

#include "app/gui/IconBox.h"
#include "app/gui/LedgerList.h"
#include "app/gui/PictureControl.h"
#include "app/gui/Pictures.h"
#include "app/gui/StatusBox.h"
#include "app/gui/TwipScale.h"
#include "ui/FormView.h"

class wxCheckBox;
class wxChoice;
class wxFrame;
class wxPanel;
class wxTextCtrl;

namespace marlo::gui {

/// What the main window consists of: makes the controls, gives them their looks and puts them into
/// their places. What happens to them is the window's business.
class Form1Controls {
  public:
    /// @param window which gets the controls.
    /// @param songs what the list shows.
    /// @param csvIcons the pictures in front of the items that open a result file.
    Form1Controls(wxFrame& window, std::string applicationFolder, ResultList& songs,
                  std::array<IconBox, 2>& csvIcons);

    /// Loads the pictures ahead of the first paint.
    void LoadPictures();

    /// Colours and pictures for the desktop's theme of the moment.
    void ApplyTheme();

    /// The window is on a screen of another resolution; the places are still those of the old one.
    void FollowScreen();

    const TwipScale& Scale() const { return scale_; }
    NaturalSizes Sizes() const;
    TwipSize ClientArea() const;
    void Place(const FormLayout& layout) const;

    // For the window to listen to and to fill.
    wxPanel* background = nullptr;
    PicturePanel* imgMenu = nullptr;
    PicturePanel* imgRightPane = nullptr;
    std::array<CommandItemControl*, kCommandItemCount> cmdbuttons{};
    PictureButton* btnDonate = nullptr;
    wxChoice* cboSearchType = nullptr;
    wxCheckBox* chkIgnoreCase = nullptr;
    wxTextCtrl* txtSearchText = nullptr;
    PictureButton* cmdFind = nullptr;
    LedgerList* lstSongs = nullptr;
    StatusBox* Text1 = nullptr;
    StatusBox* Text2 = nullptr;

  private:
    void CreateCommandItems(std::array<IconBox, 2>& csvIcons);
    void CreateSearchControls(ResultList& songs);
    std::string Picture(const std::string& name) const;
    wxFont HeadingFont() const;
    wxFont ItemFont() const;
    void PlaceInside(wxWindow* control, const marlo::Place& place, const wxPoint& origin) const;

    wxFrame& window_;
    std::string applicationFolder_;
    TwipScale scale_;
    FittedPicture mark_;
    wxPanel* boxMenu_ = nullptr;
    PictureLabel* label5_ = nullptr;
    wxWindow* image1_ = nullptr;
    std::array<wxWindow*, 2> csvIconViews_{};
    wxPanel* boxRightPane_ = nullptr;
    PictureLabel* label3_ = nullptr;
};

}  // namespace marlo::gui
