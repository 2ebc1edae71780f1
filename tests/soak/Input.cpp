#include "tests/soak/Input.h"

#include <X11/extensions/XTest.h>
#include <gdk/gdkkeysyms.h>
#include <gdk/gdkx.h>
#include <gtk/gtk.h>

namespace marlo::soak {

namespace {

Display* TheDisplay() {
    return gdk_x11_get_default_xdisplay();
}

KeyCode CodeOf(unsigned key) {
    return XKeysymToKeycode(TheDisplay(), key);
}

unsigned KeyOf(Modifier modifier) {
    switch (modifier) {
        case Modifier::Shift:
            return GDK_KEY_Shift_L;
        case Modifier::Control:
            return GDK_KEY_Control_L;
        case Modifier::Alt:
            return GDK_KEY_Alt_L;
        case Modifier::Nothing:
            break;
    }
    return GDK_KEY_VoidSymbol;
}

void SendButton(unsigned button, bool isDown) {
    XTestFakeButtonEvent(TheDisplay(), button, isDown ? True : False, CurrentTime);
    XFlush(TheDisplay());
}

}  // namespace

void MoveMouse(const wxPoint& point) {
    constexpr int sameScreen = -1;
    XTestFakeMotionEvent(TheDisplay(), sameScreen, point.x, point.y, CurrentTime);
    XFlush(TheDisplay());
}

void PressButton(unsigned button) {
    SendButton(button, true);
}

void ReleaseButton(unsigned button) {
    SendButton(button, false);
}

void PressKey(unsigned key, Modifier modifier) {
    const auto send = [](unsigned part, bool isDown) {
        XTestFakeKeyEvent(TheDisplay(), CodeOf(part), isDown ? True : False, CurrentTime);
    };
    if (modifier != Modifier::Nothing)
        send(KeyOf(modifier), true);
    send(key, true);
    send(key, false);
    if (modifier != Modifier::Nothing)
        send(KeyOf(modifier), false);
    XFlush(TheDisplay());
}

void Activate(const wxTopLevelWindow& window) {
    GdkDisplay* const display = gdk_display_get_default();
    gdk_x11_display_error_trap_push(display);  // it may not be on the screen yet
    XSetInputFocus(TheDisplay(), GDK_WINDOW_XID(gtk_widget_get_window(window.GetHandle())),
                   RevertToParent, CurrentTime);
    gdk_x11_display_error_trap_pop_ignored(display);
}

}  // namespace marlo::soak
