#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace marlo::test {

/// A window on the screen, of whatever program, as the window manager knows it.
struct ScreenWindow {
    std::uint64_t id = 0;
    std::string title;
    std::uint64_t owner = 0;           ///< the window that it is shown over; 0 for none
    std::set<std::size_t> iconWidths;  ///< in pixels; window managers give one to those without
    int left = 0;                      ///< of what is inside its frame, in pixels
    int top = 0;
};

/// The windows on the screen, in the order in which they came.
std::vector<ScreenWindow> WindowsOnScreen();

/// Asks a window to close, as the user does.
void CloseOnScreen(const ScreenWindow& window);

}  // namespace marlo::test
