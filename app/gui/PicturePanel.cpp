#include "app/gui/PicturePanel.h"

#include <wx/dcbuffer.h>

#include "app/gui/Pictures.h"
#include "app/gui/Theme.h"
#include "app/gui/TwipScale.h"
#include "platform/Toolkit.h"

namespace marlo::gui {

PicturePanel::PicturePanel(wxWindow* parent, const wxString& name, const wxSize& drawnSize)
    : drawnSize_(drawnSize) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL, name);
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { Paint(); });
}

void PicturePanel::Paint() {
    wxAutoBufferedPaintDC dc(this);
    PaintBehind(dc, {});
    if (focused_ == nullptr)
        return;
    dc.SetPen(wxPen(CurrentTheme().focusRing, DesignPixels(*this, 2)));
    dc.SetBrush(*wxTRANSPARENT_BRUSH);
    dc.DrawRoundedRectangle(RingOf(*focused_), DesignPixels(*this, 4));
}

wxRect PicturePanel::RingOf(const wxWindow& control) const {
    return control.GetRect().Inflate(DesignPixels(*this, 3));
}

void PicturePanel::MarkFocus(wxWindow* control) {
    for (const wxWindow* const window : {focused_, control})
        if (window != nullptr)
            RefreshRect(RingOf(*window).Inflate(DesignPixels(*this, 2)), false);
    focused_ = control;
}

void PicturePanel::SetPicture(const std::string& path) {
    path_ = path;
    picture_ = {};
    loadedFor_ = {};
    Refresh();
}

void PicturePanel::PaintBehind(wxDC& dc, const wxPoint& origin) {
    LoadFor(GetClientSize());
    if (picture_.IsOk()) {
        dc.DrawBitmap(picture_, -origin.x, -origin.y);
        return;
    }
    dc.SetBackground(GetBackgroundColour());
    dc.Clear();
}

/// Drawing takes time, so a picture that is large enough is kept while the window is resized.
void PicturePanel::LoadFor(const wxSize& size) {
    const bool isLargeEnough = size.x <= loadedFor_.x && size.y <= loadedFor_.y;
    if (isLargeEnough || path_.empty() || size.x <= 0 || size.y <= 0)
        return;
    loadedFor_ = {std::max(size.x, loadedFor_.x), std::max(size.y, loadedFor_.y)};
    picture_ = LoadBackground(*this, path_, drawnSize_, loadedFor_);
}

PictureLabel::PictureLabel(PicturePanel* parent, const wxString& name, const wxString& text,
                           const wxFont& font)
    : text_(text), font_(font) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE, name);
    platform::SetAccessibleName(GetHandle(), platform::ControlRole::Text,
                                wxString(text).Trim(false).utf8_string());
    GetTextExtent(text_, &textSize_.x, &textSize_.y, nullptr, nullptr, &font_);
    Bind(wxEVT_PAINT, [this, parent](wxPaintEvent&) {
        wxAutoBufferedPaintDC dc(this);
        parent->PaintBehind(dc, GetPosition());
        dc.SetFont(font_);
        dc.SetTextForeground(colour_);
        dc.DrawText(text_, 0, (GetClientSize().y - textSize_.y) / 2);
    });
}

void PictureLabel::SetColour(const wxColour& colour) {
    colour_ = colour;
    Refresh();
}

}  // namespace marlo::gui
