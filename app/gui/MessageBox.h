#pragma once

#include "core/MainWindow.h"

class wxWindow;

namespace marlo::gui {

/// Shows a message box until the user answers.
/// @param owner the window that it is shown over, nullptr for none.
MessageAnswer ShowMessageBox(wxWindow* owner, const Message& message);

}  // namespace marlo::gui
