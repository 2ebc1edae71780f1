#include "platform/Toolkit.h"

#include <initguid.h>
#include <oleacc.h>

#include "platform/windows/System.h"
#include "platform/windows/Wide.h"

namespace marlo::platform {

namespace {

long RoleOf(ControlRole role) {
    switch (role) {
        case ControlRole::Button:
            return ROLE_SYSTEM_PUSHBUTTON;
        case ControlRole::Text:
            return ROLE_SYSTEM_STATICTEXT;
        case ControlRole::Picture:
            return ROLE_SYSTEM_GRAPHIC;
    }
    return ROLE_SYSTEM_CLIENT;
}

/// What annotates windows for assistive technology; nullptr where the system has none.
IAccPropServices* Annotations() {
    static IAccPropServices* const annotations = [] {
        void* made = nullptr;
        CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                         &made);
        return static_cast<IAccPropServices*>(made);
    }();
    return annotations;
}

}  // namespace

void StartReadingFonts() {}

void ShortenWayToArrows() {}

double TextScale() {
    return 1;  // it is a part of the screen's resolution
}

std::optional<std::int32_t> ButtonShadowColour() {
    return static_cast<std::int32_t>(GetSysColor(COLOR_BTNSHADOW));
}

void FlushDisplay() {
    GdiFlush();
}

void SetAccessibleName(void* control, ControlRole role, const std::string& name) {
    if (Annotations() != nullptr) {
        VARIANT value{};
        value.vt = VT_I4;
        value.lVal = RoleOf(role);
        Annotations()->SetHwndProp(static_cast<HWND>(control), static_cast<DWORD>(OBJID_CLIENT),
                                   CHILDID_SELF, PROPID_ACC_ROLE, value);
    }
    SetAccessibleName(control, name);
}

void SetAccessibleName(void* control, const std::string& name) {
    if (Annotations() != nullptr)
        Annotations()->SetHwndPropStr(static_cast<HWND>(control), static_cast<DWORD>(OBJID_CLIENT),
                                      CHILDID_SELF, PROPID_ACC_NAME, WideText(name).c_str());
}

}  // namespace marlo::platform
