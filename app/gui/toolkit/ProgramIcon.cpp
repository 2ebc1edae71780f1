#include "app/gui/ProgramIcon.h"

#include <cmath>
#include <system_error>
#include <wx/iconbndl.h>
#include <wx/log.h>
#include <wx/toplevel.h>

#include "app/gui/TextConversion.h"
#include "platform/FileSystem.h"

namespace marlo::gui {

namespace {

// In pixels of the toolkit.
constexpr int kLargeIcon = 32;
constexpr int kSmallIcon = 16;

}  // namespace

void ShowProgramIcon(wxTopLevelWindow& window, const std::string& path) {
    const wxLogNull quiet;
    std::error_code error;
    if (!platform::IsFile(path, error))
        return;
    wxIconBundle file;
    file.AddIcon(ToolkitPath(path), wxBITMAP_TYPE_ICO);
    // Only the two sizes that are asked for: all of them are more than a window manager likes.
    wxIconBundle icons;
    for (const int size : {kLargeIcon, kSmallIcon}) {
        const int dots = static_cast<int>(std::lround(size * window.GetContentScaleFactor()));
        const wxIcon icon = file.GetIcon(wxSize(dots, dots), wxIconBundle::FALLBACK_NEAREST_LARGER);
        if (icon.IsOk())
            icons.AddIcon(icon);
    }
    if (!icons.IsEmpty())
        window.SetIcons(icons);
}

}  // namespace marlo::gui
