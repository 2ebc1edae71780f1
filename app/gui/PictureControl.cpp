#include "app/gui/PictureControl.h"

#include <utility>
#include <wx/dcbuffer.h>

#include "app/gui/TwipScale.h"
#include "platform/Toolkit.h"

namespace marlo::gui {

PictureControl::PictureControl(PicturePanel* parent, const wxString& name) : panel_(parent) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
           wxBORDER_NONE | wxWANTS_CHARS | wxFULL_REPAINT_ON_RESIZE, name);
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { Paint(); });
    Bind(wxEVT_SET_CURSOR,
         [this](wxSetCursorEvent& event) { event.SetCursor(panel_->HandCursor()); });
    Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
        panel_->MarkFocus(this);
        event.Skip();
    });
    Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
        panel_->MarkFocus(nullptr);
        event.Skip();
    });
    BindMouse();
    Bind(wxEVT_CHAR, [this](wxKeyEvent& event) {
        const int key = event.GetKeyCode();
        if (key == WXK_RETURN || key == WXK_NUMPAD_ENTER || key == WXK_SPACE)
            Click();
        else if (key == WXK_TAB)
            Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward
                                       : wxNavigationKeyEvent::IsForward);
        else
            event.Skip();
    });
}

void PictureControl::BindMouse() {
    Bind(wxEVT_MOTION, [this](wxMouseEvent& event) {
        if (onMouseMove && GetClientRect().Contains(event.GetPosition()))
            onMouseMove();
    });
    Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent&) {
        SetFocus();
        Press();
    });
    Bind(wxEVT_LEFT_DCLICK, [this](wxMouseEvent&) { Press(); });
    Bind(wxEVT_LEFT_UP, [this](wxMouseEvent& event) {
        const bool isClick = isPressed_ && GetClientRect().Contains(event.GetPosition());
        LetGo();
        if (isClick)
            Click();
    });
    Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { isPressed_ = false; });
}

/// The mouse may leave the control before the button is released.
void PictureControl::Press() {
    isPressed_ = true;
    if (!HasCapture())
        CaptureMouse();
}

void PictureControl::LetGo() {
    isPressed_ = false;
    if (HasCapture())
        ReleaseMouse();
}

bool PictureControl::Show(bool show) {
    if (!show)
        LetGo();
    return wxWindow::Show(show);
}

void PictureControl::DoEnable(bool enable) {
    if (!enable)
        LetGo();
    wxWindow::DoEnable(enable);
    Refresh();  // not every system does that by itself
}

void PictureControl::SetAccessibleLabel(const wxString& label) {
    platform::SetAccessibleName(GetHandle(), platform::ControlRole::Button, label.utf8_string());
}

void PictureControl::Paint() {
    wxAutoBufferedPaintDC dc(this);
    panel_->PaintBehind(dc, GetPosition());
    Draw(dc);
}

void PictureControl::Click() {
    if (IsEnabled() && onClick)
        onClick();
}

CommandItemControl::CommandItemControl(PicturePanel* parent, std::size_t index,
                                       const wxString& caption, const wxFont& font,
                                       const wxSize& naturalSize, bool hasWindowBackground)
    : PictureControl(parent, wxString::Format("cmdbuttons(%zu)", index)),
      caption_(caption),
      font_(font),
      naturalSize_(naturalSize),
      hasWindowBackground_(hasWindowBackground) {
    SetAccessibleLabel(caption);
}

void CommandItemControl::SetCaption(const wxString& caption) {
    if (caption == caption_)
        return;
    caption_ = caption;
    naturalSize_ = Panel().TextSize(caption, font_);
    SetAccessibleLabel(caption);
    Refresh();
}

void CommandItemControl::SetCaptionFont(const wxFont& font) {
    font_ = font;
    naturalSize_ = Panel().TextSize(caption_, font);
    Refresh();
}

void CommandItemControl::SetHovered(bool isHovered) {
    if (isHovered == isHovered_)
        return;
    isHovered_ = isHovered;
    Refresh();
}

void CommandItemControl::SetColours(const wxColour& enabled, const wxColour& disabled,
                                    const wxColour& background) {
    enabledColour_ = enabled;
    disabledColour_ = disabled;
    background_ = background;
    Refresh();
}

void CommandItemControl::Draw(wxDC& dc) {
    const wxRect area = GetClientRect();
    if (hasWindowBackground_) {
        dc.SetPen(*wxTRANSPARENT_PEN);
        dc.SetBrush(background_);
        dc.DrawRectangle(area);
    }
    // A dialog in front disables the window, which is not to be seen.
    dc.SetFont(isHovered_ && IsThisEnabled() ? font_.Underlined() : font_);
    dc.SetTextForeground(IsThisEnabled() ? enabledColour_ : disabledColour_);
    DrawText(dc, caption_, 0, (area.height - naturalSize_.y) / 2);
}

PictureButton::PictureButton(PicturePanel* parent, const wxString& name, const wxString& label,
                             std::string enabledPath, std::string disabledPath)
    : PictureControl(parent, name),
      pictures_{FittedPicture(std::move(disabledPath)), FittedPicture(std::move(enabledPath))} {
    SetAccessibleLabel(label);
    SetToolTip(label);
}

const wxBitmap& PictureButton::ShownPicture() {
    return pictures_[IsThisEnabled() ? 1 : 0].In(*this);
}

void PictureButton::Draw(wxDC& dc) {
    if (ShownPicture().IsOk())
        dc.DrawBitmap(ShownPicture(), 0, 0, true);
}

}  // namespace marlo::gui
