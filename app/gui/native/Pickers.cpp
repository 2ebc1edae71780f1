#include "app/gui/Pickers.h"

#include <wx/window.h>

namespace marlo::gui {

std::optional<std::string> FolderPicker::ChooseFolder(const FolderRequest& request) {
    return platform::ChooseFolder(owner_->GetHandle(), request);
}

bool FilePicker::GetOpenFileName(OpenFileName& record) {
    return platform::ChooseFile(owner_->GetHandle(), record);
}

}  // namespace marlo::gui
