#include "tests/gui/linux/ScreenWindows.h"

#include <cstddef>
#include <gdk/gdkx.h>

namespace marlo::test {

namespace {

Display* Screen() {
    return gdk_x11_get_default_xdisplay();
}

Atom AtomOf(const char* name) {
    return XInternAtom(Screen(), name, False);
}

/// The items of a window's property; empty when it has none. @param Item as the display keeps an
/// item of the property's size.
template <class Item>
std::vector<Item> Property(Window window, const char* name) {
    constexpr long longest = 1L << 20;
    Atom type = None;
    int bits = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* bytes = nullptr;
    XGetWindowProperty(Screen(), window, AtomOf(name), 0, longest, False, AnyPropertyType, &type,
                       &bits, &count, &rest, &bytes);
    std::vector<Item> items;
    if (bytes != nullptr) {
        const auto* const first = reinterpret_cast<const Item*>(bytes);
        items.assign(first, first + count);
        XFree(bytes);
    }
    return items;
}

/// @param icons each of them a width, a height, and the pixels.
std::set<std::size_t> IconWidths(const std::vector<unsigned long>& icons) {
    std::set<std::size_t> widths;
    for (std::size_t at = 0; at + 1 < icons.size(); at += 2 + icons[at] * icons[at + 1])
        widths.insert(icons[at]);
    return widths;
}

}  // namespace

std::vector<ScreenWindow> WindowsOnScreen() {
    // One that goes meanwhile has no properties any more.
    gdk_x11_display_error_trap_push(gdk_display_get_default());
    std::vector<ScreenWindow> windows;
    for (const unsigned long id :
         Property<unsigned long>(DefaultRootWindow(Screen()), "_NET_CLIENT_LIST")) {
        ScreenWindow window;
        window.id = id;
        const auto title = Property<char>(id, "_NET_WM_NAME");
        window.title.assign(title.begin(), title.end());
        const auto owner = Property<unsigned long>(id, "WM_TRANSIENT_FOR");
        window.owner = owner.empty() ? 0 : owner.front();
        window.iconWidths = IconWidths(Property<unsigned long>(id, "_NET_WM_ICON"));
        Window child = None;
        XTranslateCoordinates(Screen(), id, DefaultRootWindow(Screen()), 0, 0, &window.left,
                              &window.top, &child);
        windows.push_back(window);
    }
    gdk_x11_display_error_trap_pop_ignored(gdk_display_get_default());
    return windows;
}

void CloseOnScreen(const ScreenWindow& window) {
    XEvent request{};
    request.xclient.type = ClientMessage;
    request.xclient.window = window.id;
    request.xclient.message_type = AtomOf("_NET_CLOSE_WINDOW");
    request.xclient.format = 32;
    request.xclient.data.l[1] = 2;  // the user wants it
    XSendEvent(Screen(), DefaultRootWindow(Screen()), False,
               SubstructureNotifyMask | SubstructureRedirectMask, &request);
    XFlush(Screen());
}

}  // namespace marlo::test
