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

double TextScale() {
    constexpr double usual = 96;  // dots per inch
    GdkScreen* const screen = gdk_screen_get_default();
    const double resolution = screen == nullptr ? usual : gdk_screen_get_resolution(screen);
    return resolution > 0 ? resolution / usual : 1;
}

void SetAccessibleName(void* control, ControlRole role, const std::string& name) {
    atk_object_set_role(AccessibleOf(control), RoleOf(role));
    SetAccessibleName(control, name);
}

void SetAccessibleName(void* control, const std::string& name) {
    atk_object_set_name(AccessibleOf(control), name.c_str());
}

}  // namespace marlo::platform
