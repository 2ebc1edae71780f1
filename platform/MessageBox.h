#pragma once

#include <string>

namespace marlo::platform {

enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageIcon { None, Information, Exclamation, Question };
enum class MessageAnswer { None, Ok, Cancel, Yes, No };

/// Shows the system's own message box, where it has one, until the user answers.
/// @param owner the system's own handle of the window that the box is shown over, nullptr for none;
///        when another window of the program is active, that one owns the box.
/// @param text in UTF-16, as is the title.
/// @return the button that closed it; `None` when it could not be shown.
MessageAnswer ShowMessageBox(void* owner, const std::wstring& text, const std::wstring& title,
                             MessageButtons buttons, MessageIcon icon);

}  // namespace marlo::platform
