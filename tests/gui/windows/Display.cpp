#include "tests/gui/Display.h"

#include <array>
#include <cstddef>
#include <stdexcept>
#include <vector>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/msw/private.h>

namespace marlo::test {

namespace {

HWND HandleOf(const wxWindow& window) {
    return static_cast<HWND>(window.GetHandle());
}

bool BelongsToTheProgram(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

/// The colours of a part of a window's client area, from the left top, row by row. The window tells
/// them at once, the screen only later.
std::vector<RGBQUAD> Dots(HWND window, const wxRect& area) {
    std::vector<RGBQUAD> dots(static_cast<std::size_t>(area.width) *
                              static_cast<std::size_t>(area.height));
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = area.width;
    format.bmiHeader.biHeight = -area.height;  // from the top
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    const HDC shown = GetDCEx(window, nullptr, DCX_CACHE);  // with the controls inside
    const HDC copy = CreateCompatibleDC(shown);
    const HBITMAP bitmap = CreateCompatibleBitmap(shown, area.width, area.height);
    const HGDIOBJ before = SelectObject(copy, bitmap);
    bool isRead =
        BitBlt(copy, 0, 0, area.width, area.height, shown, area.x, area.y, SRCCOPY) != FALSE;
    SelectObject(copy, before);
    isRead = isRead && GetDIBits(copy, bitmap, 0, static_cast<UINT>(area.height), dots.data(),
                                 &format, DIB_RGB_COLORS) == area.height;
    DeleteObject(bitmap);
    DeleteDC(copy);
    ReleaseDC(window, shown);
    if (!isRead)
        throw std::runtime_error("the window has no such part");
    return dots;
}

}  // namespace

void RunNextEvent() {
    wxEventLoopBase& loop = *wxEventLoopBase::GetActive();
    if (loop.Pending())
        loop.Dispatch();
    else if (wxTheApp->HasPendingEvents())
        wxTheApp->ProcessPendingEvents();
    else if (!loop.ProcessIdle())
        loop.Dispatch();  // waits for one
}

void RunDueEvents() {
    wxEventLoopBase& loop = *wxEventLoopBase::GetActive();
    do {
        while (loop.Pending())
            loop.Dispatch();
        wxTheApp->ProcessPendingEvents();
    } while (loop.ProcessIdle() || loop.Pending() || wxTheApp->HasPendingEvents());
}

bool HasKeyboard() {
    return BelongsToTheProgram(GetForegroundWindow()) && GetFocus() != nullptr;
}

bool HasKeyboard(const wxWindow& window) {
    return GetForegroundWindow() == HandleOf(window) && GetActiveWindow() == HandleOf(window);
}

wxWindow* FocusIn(wxWindow& window) {
    wxWindow* const control = wxGetWindowFromHWND(GetFocus());
    return wxGetTopLevelParent(control) == &window && control != &window ? control : nullptr;
}

int MenuKey() {
    return WXK_WINDOWS_MENU;
}

std::string TitleOf(const wxWindow& window) {
    std::array<wchar_t, 256> title{};
    GetWindowTextW(HandleOf(window), title.data(), static_cast<int>(title.size()));
    return wxString(title.data()).utf8_string();
}

bool HasIcon(const wxTopLevelWindow& window) {
    return SendMessage(HandleOf(window), WM_GETICON, ICON_BIG, 0) != 0 &&
           SendMessage(HandleOf(window), WM_GETICON, ICON_SMALL, 0) != 0;
}

bool HasItsSize(const wxTopLevelWindow& /*window*/) {
    return true;  // it has it at once
}

void Restore(wxTopLevelWindow& window) {
    // The toolkit's own way does not tell that it is back.
    PostMessage(HandleOf(window), WM_SYSCOMMAND, SC_RESTORE, 0);
}

wxImage PictureOf(wxWindow& control, const wxRect& area) {
    control.Update();
    const std::vector<RGBQUAD> dots = Dots(HandleOf(control), area);
    wxImage picture(area.GetSize(), false);
    const RGBQUAD* dot = dots.data();
    for (int y = 0; y < area.height; ++y)
        for (int x = 0; x < area.width; ++x, ++dot)
            picture.SetRGB(x, y, dot->rgbRed, dot->rgbGreen, dot->rgbBlue);
    return picture;
}

}  // namespace marlo::test
