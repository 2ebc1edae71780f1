#pragma once

#include <string>
#include <wx/bitmap.h>
#include <wx/cursor.h>
#include <wx/font.h>
#include <wx/panel.h>

namespace marlo::gui {

/// A panel with a picture behind its controls.
class PicturePanel final : public wxPanel {
  public:
    /// @param drawnSize the size that the picture was drawn in.
    PicturePanel(wxWindow* parent, const wxString& name, const wxSize& drawnSize);

    void SetPicture(const std::string& path);

    /// Paints what is behind a control, for one that paints itself.
    /// @param origin the control's left top corner in the panel.
    void PaintBehind(wxDC& dc, const wxPoint& origin);

    /// The pointer over what can be clicked, one for all of them.
    const wxCursor& HandCursor() const { return handCursor_; }

    /// Paints a ring around the control that has the focus; none for nullptr.
    void MarkFocus(wxWindow* control);

  private:
    void Paint();
    wxRect RingOf(const wxWindow& control) const;
    void LoadFor(const wxSize& size);

    wxSize drawnSize_;
    std::string path_;
    wxBitmap picture_;
    wxSize loadedFor_;
    wxWindow* focused_ = nullptr;
    wxCursor handCursor_{wxCURSOR_HAND};
};

/// A text on a picture, which does nothing.
class PictureLabel final : public wxWindow {
  public:
    PictureLabel(PicturePanel* parent, const wxString& name, const wxString& text,
                 const wxFont& font);

    void SetColour(const wxColour& colour);
    wxSize TextSize() const { return textSize_; }

    bool AcceptsFocus() const override { return false; }

  private:
    wxString text_;
    wxFont font_;
    wxSize textSize_;
    wxColour colour_;
};

}  // namespace marlo::gui
