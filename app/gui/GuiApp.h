#pragma once

#include <iostream>
#include <wx/app.h>
#include <wx/image.h>

#include "platform/Toolkit.h"

namespace marlo::gui {

/// What every program that shows Marlo's windows is.
class GuiApp : public wxApp {
  public:
    bool OnInit() override {
        platform::StartReadingFonts();
        platform::ShortenWayToArrows();
        SetAppName("marlo");
        SetAppDisplayName("Marlo");
        // Not all that there are: each takes a little of the start.
        wxImage::AddHandler(new wxGIFHandler);
        wxImage::AddHandler(new wxICOHandler);
#if wxUSE_LIBPNG
        wxImage::AddHandler(new wxPNGHandler);
#endif
        return true;
    }

    /// A check of the toolkit's own that failed is no reason to stop the user.
    void OnAssertFailure(const wxChar* file, int line, const wxChar* /*function*/,
                         const wxChar* condition, const wxChar* message) override {
        std::cerr << "marlo: " << wxString(file) << ":" << line << ": " << wxString(condition)
                  << (message == nullptr ? wxString() : ": " + wxString(message)) << std::endl;
    }

    /// The window's texts are English and its places fixed. Finding the user's direction out would
    /// take longer than laying the window out.
    wxLayoutDirection GetLayoutDirection() const override {
        return wxLayout_LeftToRight;
    }
};

}  // namespace marlo::gui
