#include "dialogs/frmAbout.h"

#include "core/Application.h"

namespace marlo {

frmAbout LoadAbout(const Version& version) {
    const std::string title(kApplicationTitle);
    return {.caption = "About " + title,
            .lblVersion = "Version " + std::to_string(version.major) + "." +
                          std::to_string(version.minor) + "." + std::to_string(version.revision),
            .lblTitle = title,
            .lblDescription =
                "Everything you wanted to know about your usage of Cubase SX3 VST "
                "and DirectX Plugins"};
}

WindowPlace CentredOver(const WindowPlace& mainWindow, const WindowPlace& dialog) {
    return {.left = mainWindow.left + mainWindow.width / 2 - dialog.width / 2,
            .top = mainWindow.top + mainWindow.height / 2 - dialog.height / 2,
            .width = dialog.width,
            .height = dialog.height};
}

}  // namespace marlo
