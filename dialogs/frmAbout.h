#pragma once

#include <cstdint>
#include <string>

namespace marlo {

/// Where a window stands on the screen, and its size, all in the same unit.
struct WindowPlace {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// The program's version record.
struct Version {
    std::int32_t major = 1;
    std::int32_t minor = 0;
    std::int32_t revision = 0;
};

/// What the About box tells.
struct frmAbout {
    std::string caption;
    std::string lblVersion;
    std::string lblTitle;
    std::string lblDescription;
};

/// What the About box of a version tells.
frmAbout LoadAbout(const Version& version);

/// Centres a dialog over the main window, wherever that stands, also partly off the screen.
/// @param dialog its size; its place does not count.
/// @return the dialog's new place.
WindowPlace CentredOver(const WindowPlace& mainWindow, const WindowPlace& dialog);

}  // namespace marlo
