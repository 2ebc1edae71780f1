#include "platform/Toolkit.h"

#include <gtk/gtk.h>

namespace marlo::platform {

namespace {

AtkRole RoleOf(ControlRole role) {
    switch (role) {
        case ControlRole::Button:
            return ATK_ROLE_PUSH_BUTTON;
        case ControlRole::Text:
            return ATK_ROLE_LABEL;
        case ControlRole::Picture:
            return ATK_ROLE_ICON;
    }
    return ATK_ROLE_UNKNOWN;
}

AtkObject* AccessibleOf(void* control) {
    return gtk_widget_get_accessible(static_cast<GtkWidget*>(control));
}

}  // namespace

void StartReadingFonts() {
    pango_cairo_font_map_get_default();  // starts its thread
}

void ShortenWayToArrows() {
    GdkMonitor* const monitor = gdk_display_get_monitor(gdk_display_get_default(), 0);
    if (monitor == nullptr || gdk_monitor_get_scale_factor(monitor) > 1)
        return;  // the toolkit's own picture of it has one size
    GtkCssProvider* const style = gtk_css_provider_new();
    gtk_css_provider_load_from_data(
        style,
        "combobox arrow { -gtk-icon-source: -gtk-recolor(url(\"resource:///org/gtk/libgtk/icons/"
        "16x16/status/pan-down-symbolic.symbolic.png\")); }",
        -1, nullptr);
    gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(style),
                                              GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(style);
}

double TextScale() {
    constexpr double usual = 96;  // dots per inch
    GdkScreen* const screen = gdk_screen_get_default();
    const double resolution = screen == nullptr ? usual : gdk_screen_get_resolution(screen);
    return resolution > 0 ? resolution / usual : 1;
}

std::optional<std::int32_t> ButtonShadowColour() {
    return std::nullopt;  // a theme's is a background's
}

void FlushDisplay() {
    gdk_display_flush(gdk_display_get_default());
}

void SetAccessibleName(void* control, ControlRole role, const std::string& name) {
    atk_object_set_role(AccessibleOf(control), RoleOf(role));
    SetAccessibleName(control, name);
}

void SetAccessibleName(void* control, const std::string& name) {
    atk_object_set_name(AccessibleOf(control), name.c_str());
}

}  // namespace marlo::platform
