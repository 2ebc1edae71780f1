#pragma once

#include <wx/app.h>
#include <wx/image.h>

namespace marlo::gui {

/// What every program that shows Marlo's windows is.
class GuiApp : public wxApp {
  public:
    bool OnInit() override {
        SetAppName("marlo");
        SetAppDisplayName("Marlo");
        wxImage::AddHandler(new wxGIFHandler);
        wxImage::AddHandler(new wxICOHandler);
        wxImage::AddHandler(new wxPNGHandler);
        return true;
    }

    /// The window's texts are English and its places fixed. Finding the user's direction out would
    /// take longer than laying the window out.
    wxLayoutDirection GetLayoutDirection() const override { return wxLayout_LeftToRight; }
};

}  // namespace marlo::gui
