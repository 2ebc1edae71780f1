#include "app/gui/ProgramIcon.h"

#include <wx/toplevel.h>

#include "platform/SetProgramIcon.h"

namespace marlo::gui {

void ShowProgramIcon(wxTopLevelWindow& window, const std::string& path) {
    platform::SetProgramIcon(window.GetHandle(), path, true);
}

}  // namespace marlo::gui
