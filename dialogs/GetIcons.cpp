#include "dialogs/GetIcons.h"

#include "core/ErrorLog.h"

namespace marlo {

void DrawSmallIcon(const Application& application, const std::string& path, PictureBox& box) {
    RunGuarded(application, "FileBrowser:StripTerminator", [&] {
        const auto icon = application.desktop.SmallIcon(path);
        if (!icon)
            return;
        box.Clear();
        box.Draw(*icon);
    });
}

void LoadCsvAppIcons(const Application& application, const std::string& path, PictureBox& first,
                     PictureBox& second) {
    RunGuarded(application, "LoadCsvAppIcons", [&] {
        DrawSmallIcon(application, path, first);
        DrawSmallIcon(application, path, second);
    });
}

}  // namespace marlo
