#pragma once

#include <string>
#include <vector>
#include <wx/bitmap.h>
#include <wx/cursor.h>
#include <wx/font.h>
#include <wx/panel.h>

namespace marlo::gui {

/// The colours behind a panel's pictures.
struct Ground {
    wxColour top;
    wxColour rest;
    int topHeight = 0;  ///< in design pixels
};

/// A picture on a panel, opaque, which is as much larger than drawn as the panel is wider.
struct Piece {
    std::string path;
    wxRect drawn;
    wxDirection edge = wxTOP;  ///< of the panel, which the place counts from
    bool hangs = false;        ///< moves up, if need be, to end above a line
};

/// Draws a text in the font and colour of a DC, which would measure it as well.
void DrawText(wxDC& dc, const wxString& text, int x, int y);

/// A panel with pictures behind its controls.
class PicturePanel final : public wxPanel {
  public:
    /// @param drawnWidth the width of the panel that the pictures were drawn for.
    PicturePanel(wxWindow* parent, const wxString& name, int drawnWidth);

    /// @param pieces from back to front.
    void SetPictures(const Ground& ground, std::vector<Piece> pieces);

    /// @param y the line above which pieces that hang end.
    void SetHangingEnd(int y);

    /// Loads the pictures for the panel's width, which painting would do otherwise.
    void LoadPictures();

    /// Paints what is behind a control, for one that paints itself.
    /// @param origin the control's left top corner in the panel.
    void PaintBehind(wxDC& dc, const wxPoint& origin);

    /// The size of a text that is drawn on the panel.
    wxSize TextSize(const wxString& text, const wxFont& font);

    /// The pointer over what can be clicked, one for all of them.
    const wxCursor& HandCursor();

    /// Paints a ring around the control that has the focus; none for nullptr.
    void MarkFocus(wxWindow* control);

  private:
    void Paint();
    wxRect Enlarged(const wxRect& drawn) const;
    wxPoint PlaceOf(const Piece& piece) const;
    wxRect RingOf(const wxWindow& control) const;

    int drawnWidth_;
    Ground ground_;
    std::vector<Piece> pieces_;
    std::vector<wxBitmap> pictures_;
    int hangingEnd_ = 0;
    int loadedFor_ = 0;
    wxWindow* focused_ = nullptr;
    wxCursor handCursor_;
};

/// A text on a picture, which does nothing.
class PictureLabel final : public wxWindow {
  public:
    PictureLabel(PicturePanel* parent, const wxString& name, const wxString& text,
                 const wxFont& font);

    void SetTextFont(const wxFont& font);
    void SetColour(const wxColour& colour);
    wxSize TextSize() const { return textSize_; }

    bool AcceptsFocus() const override { return false; }

  private:
    PicturePanel* panel_;
    wxString text_;
    wxFont font_;
    wxSize textSize_;
    wxColour colour_;
};

}  // namespace marlo::gui
