#include "app/gui/PicturePanel.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <wx/dcbuffer.h>
#include <wx/dcclient.h>
#include <wx/graphics.h>

#include "app/gui/Pictures.h"
#include "app/gui/Theme.h"
#include "app/gui/TwipScale.h"
#include "platform/Toolkit.h"

namespace marlo::gui {

void DrawText(wxDC& dc, const wxString& text, int x, int y) {
    if (wxGraphicsContext* const context = dc.GetGraphicsContext())
        context->DrawText(text, x, y);
    else
        dc.DrawText(text, x, y);
}

PicturePanel::PicturePanel(wxWindow* parent, const wxString& name, int drawnWidth)
    : drawnWidth_(drawnWidth) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL, name);
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { Paint(); });
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        Refresh();  // the controls on it too
    });
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
    // An item may reach to the panel's edge.
    return control.GetRect()
        .Inflate(DesignPixels(*this, 3))
        .Intersect(GetClientRect().Deflate(DesignPixels(*this, 1)));
}

void PicturePanel::MarkFocus(wxWindow* control) {
    for (const wxWindow* const window : {focused_, control})
        if (window != nullptr)
            RefreshRect(RingOf(*window).Inflate(DesignPixels(*this, 2)), false);
    focused_ = control;
}

const wxCursor& PicturePanel::HandCursor() {
    if (!handCursor_.IsOk())
        handCursor_ = wxCursor(wxCURSOR_HAND);
    return handCursor_;
}

void PicturePanel::SetPictures(const Ground& ground, std::vector<Piece> pieces) {
    ground_ = ground;
    // For controls that are transparent in the eyes of their users only.
    SetBackgroundColour(ground.topHeight > 0 ? ground.top : ground.rest);
    pieces_ = std::move(pieces);
    loadedFor_ = 0;
    Refresh();
}

void PicturePanel::SetHangingEnd(int y) {
    if (y == hangingEnd_)
        return;
    hangingEnd_ = y;
    Refresh();
}

void PicturePanel::PaintBehind(wxDC& dc, const wxPoint& origin) {
    LoadPictures();
    dc.SetBackground(ground_.rest);
    dc.Clear();
    const wxSize size = GetClientSize();
    if (ground_.topHeight > 0) {
        dc.SetPen(*wxTRANSPARENT_PEN);
        dc.SetBrush(ground_.top);
        dc.DrawRectangle(-origin.x, -origin.y, size.x, DesignPixels(*this, ground_.topHeight));
    }
    for (std::size_t i = 0; i < pictures_.size(); ++i)
        if (pictures_[i].IsOk())
            dc.DrawBitmap(pictures_[i], PlaceOf(pieces_[i]) - origin);
}

wxPoint PicturePanel::PlaceOf(const Piece& piece) const {
    wxPoint place = Enlarged(piece.drawn).GetTopLeft();
    if (piece.edge == wxBOTTOM)
        place.y += GetClientSize().y;
    if (piece.hangs)
        place.y = std::min(place.y, hangingEnd_ - Enlarged(piece.drawn).height);
    return place;
}

wxRect PicturePanel::Enlarged(const wxRect& drawn) const {
    const double enlargement = static_cast<double>(GetClientSize().x) / drawnWidth_;
    const auto enlarged = [&](int length) {
        return static_cast<int>(std::lround(length * enlargement));
    };
    return {enlarged(drawn.x), enlarged(drawn.y), enlarged(drawn.width), enlarged(drawn.height)};
}

void PicturePanel::LoadPictures() {
    if (GetClientSize().x == loadedFor_)
        return;
    loadedFor_ = GetClientSize().x;
    // Rounded up: a drawing keeps its shape, and one that is too low would not be wide enough.
    const auto enlarged = [&](int length) {
        return (length * loadedFor_ + drawnWidth_ - 1) / drawnWidth_;
    };
    pictures_.clear();
    for (const Piece& piece : pieces_)
        pictures_.push_back(LoadPicture(
            *this, piece.path, {enlarged(piece.drawn.width), enlarged(piece.drawn.height)}));
}

wxSize PicturePanel::TextSize(const wxString& text, const wxFont& font) {
    wxClientDC dc(this);
    dc.SetFont(font);
    return dc.GetTextExtent(text);
}

PictureLabel::PictureLabel(PicturePanel* parent, const wxString& name, const wxString& text,
                           const wxFont& font)
    : panel_(parent), text_(text), font_(font), textSize_(parent->TextSize(text, font)) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
           wxBORDER_NONE | wxFULL_REPAINT_ON_RESIZE, name);
    platform::SetAccessibleName(GetHandle(), platform::ControlRole::Text,
                                wxString(text).Trim(false).utf8_string());
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) {
        wxAutoBufferedPaintDC dc(this);
        panel_->PaintBehind(dc, GetPosition());
        dc.SetFont(font_);
        dc.SetTextForeground(colour_);
        DrawText(dc, text_, 0, (GetClientSize().y - textSize_.y) / 2);
    });
}

void PictureLabel::SetTextFont(const wxFont& font) {
    font_ = font;
    textSize_ = panel_->TextSize(text_, font);
    Refresh();
}

void PictureLabel::SetColour(const wxColour& colour) {
    colour_ = colour;
    Refresh();
}

}  // namespace marlo::gui
