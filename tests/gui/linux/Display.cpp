#include "tests/gui/Display.h"

#include <cstddef>
#include <gtk/gtk.h>
#include <memory>
#include <stdexcept>
#include <wx/app.h>

namespace marlo::test {

namespace {

GtkWindow* WindowOf(const wxWindow& window) {
    return GTK_WINDOW(window.GetHandle());
}

/// The control in a window that a part of the toolkit's is, or nullptr.
wxWindow* ControlOf(wxWindow& window, const GtkWidget* part) {
    if (window.GetHandle() == part)
        return &window;
    for (wxWindow* const child : window.GetChildren())
        if (wxWindow* const found = ControlOf(*child, part))
            return found;
    return nullptr;
}

}  // namespace

void RunNextEvent() {
    g_main_context_iteration(nullptr, TRUE);
}

void RunDueEvents() {
    gdk_display_sync(gdk_display_get_default());
    // The toolkit's own events come after the display's.
    bool isLast = false;
    wxTheApp->CallAfter([&isLast] { isLast = true; });
    while (!isLast)
        RunNextEvent();
}

bool HasKeyboard() {
    GList* const windows = gtk_window_list_toplevels();
    bool isActive = false;
    for (const GList* entry = windows; entry != nullptr; entry = entry->next)
        isActive = isActive || gtk_window_is_active(GTK_WINDOW(entry->data)) != FALSE;
    g_list_free(windows);
    return isActive;
}

bool HasKeyboard(const wxWindow& window) {
    return gtk_window_is_active(WindowOf(window)) != FALSE;
}

wxWindow* FocusIn(wxWindow& window) {
    for (GtkWidget* part = gtk_window_get_focus(WindowOf(window)); part != nullptr;
         part = gtk_widget_get_parent(part))
        if (wxWindow* const control = ControlOf(window, part))
            return control;
    return nullptr;
}

int MenuKey() {
    return WXK_MENU;
}

std::string TitleOf(const wxWindow& window) {
    const char* const title = gtk_window_get_title(WindowOf(window));
    return title == nullptr ? "" : title;
}

bool HasIcon(const wxTopLevelWindow& window) {
    return window.GetIcons().GetIcon(48).IsOk();
}

bool HasItsSize(const wxTopLevelWindow& window) {
    GdkWindow* const shown = gtk_widget_get_window(window.GetHandle());
    return shown != nullptr && window.GetClientSize() == wxSize(gdk_window_get_width(shown),
                                                                gdk_window_get_height(shown));
}

void Restore(wxTopLevelWindow& window) {
    window.Restore();
}

wxImage PictureOf(wxWindow& control, const wxRect& area) {
    control.Update();
    const wxPoint origin = control.ClientToScreen(area.GetTopLeft());
    const std::unique_ptr<GdkPixbuf, decltype(&g_object_unref)> pixels(
        gdk_pixbuf_get_from_window(gdk_get_default_root_window(), origin.x, origin.y, area.width,
                                   area.height),
        &g_object_unref);
    if (!pixels)
        throw std::runtime_error("there is no such part of the screen");
    const std::ptrdiff_t channels = gdk_pixbuf_get_n_channels(pixels.get());
    const std::ptrdiff_t stride = gdk_pixbuf_get_rowstride(pixels.get());
    const unsigned char* const bytes = gdk_pixbuf_read_pixels(pixels.get());
    wxImage picture(area.GetSize(), false);
    for (int y = 0; y < area.height; ++y)
        for (int x = 0; x < area.width; ++x) {
            const unsigned char* const pixel = bytes + y * stride + x * channels;
            picture.SetRGB(x, y, pixel[0], pixel[1], pixel[2]);
        }
    return picture;
}

}  // namespace marlo::test
