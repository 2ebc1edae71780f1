#include "app/gui/StatusBox.h"

#include <wx/control.h>
#include <wx/dcbuffer.h>
#include <wx/settings.h>

#include "app/gui/PicturePanel.h"
#include "app/gui/TextConversion.h"
#include "app/gui/TwipScale.h"
#include "platform/Toolkit.h"

namespace marlo::gui {

namespace {

constexpr int kPadding = 6;  // design pixels

}  // namespace

StatusBox::StatusBox(wxWindow* parent, const wxString& name) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
           wxBORDER_NONE | wxFULL_REPAINT_ON_RESIZE, name);
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { Paint(); });
}

void StatusBox::SetText(const std::string& text) {
    if (text == text_)
        return;
    text_ = text;
    if (!isDirty_)
        Refresh();
    isDirty_ = true;
}

int StatusBox::NaturalHeight() const {
    return GetCharHeight() + DesignPixels(*this, kPadding);
}

void StatusBox::Paint() {
    isDirty_ = false;
    const wxString text = Shown(text_);
    platform::SetAccessibleName(GetHandle(), platform::ControlRole::Text, text.utf8_string());
    wxAutoBufferedPaintDC dc(this);
    const wxRect area = GetClientRect();
    const wxColour background = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE);
    const wxColour textColour = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT);
    dc.SetBackground(background);
    dc.Clear();
    const bool isDark = textColour.GetLuminance() > background.GetLuminance();
    dc.SetPen(background.ChangeLightness(isDark ? 140 : 85));
    dc.DrawLine(area.GetTopLeft(), area.GetTopRight());
    if (GetPosition().x > 0)
        dc.DrawLine(area.GetTopLeft(), area.GetBottomLeft());
    if (text.empty())
        return;
    dc.SetFont(GetFont());
    dc.SetTextForeground(textColour);
    const int padding = DesignPixels(*this, kPadding);
    const int width = area.width - 2 * padding;
    const wxSize size = dc.GetTextExtent(text);
    DrawText(dc, size.x <= width ? text : wxControl::Ellipsize(text, dc, wxELLIPSIZE_MIDDLE, width),
             padding, (area.height - size.y) / 2 + 1);
}

}  // namespace marlo::gui
