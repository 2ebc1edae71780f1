#pragma once

#include <array>
#include <string_view>
#include <windows.h>

namespace marlo::test {

/// Whether a window is a dialog, as the system makes them, and on the screen.
inline bool IsShownDialog(HWND window) {
    constexpr std::wstring_view dialogClass = L"#32770";
    std::array<wchar_t, 16> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return name.data() == dialogClass && IsWindowVisible(window) != FALSE;
}

}  // namespace marlo::test
