#pragma once

#include "core/MainWindow.h"

class wxWindow;

namespace marlo::gui {

/// Shows a message box over a window until the user answers.
MessageAnswer ShowMessageBox(wxWindow* owner, const Message& message);

}  // namespace marlo::gui
