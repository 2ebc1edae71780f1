#include "app/gui/MessageBox.h"

#include <wx/window.h>

#include "app/gui/TextConversion.h"

namespace marlo::gui {

MessageAnswer ShowMessageBox(wxWindow* owner, const Message& message) {
    return platform::ShowMessageBox(
        owner == nullptr ? nullptr : owner->GetHandle(), Shown(message.text).ToStdWstring(),
        Shown(message.title).ToStdWstring(), message.buttons, message.icon);
}

}  // namespace marlo::gui
