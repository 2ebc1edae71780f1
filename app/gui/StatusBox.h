#pragma once

#include <wx/window.h>

namespace marlo::gui {

/// One of the two boxes at the bottom of the window. A text that is too long loses its middle: of a
/// path, both ends tell more.
class StatusBox final : public wxWindow {
  public:
    StatusBox(wxWindow* parent, const wxString& name);

    /// Cheap: the text is drawn when the window is painted next.
    void SetText(const wxString& text);
    const wxString& Text() const { return text_; }

    int NaturalHeight() const;

    bool AcceptsFocus() const override { return false; }

  private:
    void Paint();

    wxString text_;
};

}  // namespace marlo::gui
