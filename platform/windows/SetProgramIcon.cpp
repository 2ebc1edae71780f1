#include "platform/SetProgramIcon.h"

#include "platform/windows/System.h"

namespace marlo::platform {

namespace {

HWND LastOwnerOf(HWND window) {
    for (;;) {
        const HWND owner = GetWindow(window, GW_OWNER);
        if (owner == nullptr)
            return window;
        window = owner;
    }
}

/// The icon belongs to the windows that it is set for, and goes with the program.
HANDLE LoadIconOfSize(const std::string& path, int widthMetric, int heightMetric) {
    return LoadImageA(GetModuleHandleA(nullptr), path.c_str(), IMAGE_ICON,
                      GetSystemMetrics(widthMetric), GetSystemMetrics(heightMetric),
                      LR_LOADFROMFILE);
}

}  // namespace

void SetProgramIcon(void* window, const std::string& path, bool alsoOwner) {
    const auto itself = static_cast<HWND>(window);
    const HWND owner = alsoOwner ? LastOwnerOf(itself) : itself;
    const auto set = [&](WPARAM kind, HANDLE icon) {
        if (owner != itself)
            SendMessageA(owner, WM_SETICON, kind, reinterpret_cast<LPARAM>(icon));
        SendMessageA(itself, WM_SETICON, kind, reinterpret_cast<LPARAM>(icon));
    };
    set(ICON_BIG, LoadIconOfSize(path, SM_CXICON, SM_CYICON));
    set(ICON_SMALL, LoadIconOfSize(path, SM_CXSMICON, SM_CYSMICON));
}

}  // namespace marlo::platform
