#include "platform/MessageBox.h"

#include "platform/windows/System.h"

namespace marlo::platform {

namespace {

UINT StyleOf(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::Ok:
            return MB_OK;
        case MessageButtons::OkCancel:
            return MB_OKCANCEL;
        case MessageButtons::YesNo:
            return MB_YESNO;
        case MessageButtons::YesNoCancel:
            return MB_YESNOCANCEL;
    }
    return MB_OK;
}

UINT StyleOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
            return 0;
        case MessageIcon::Information:
            return MB_ICONINFORMATION;
        case MessageIcon::Exclamation:
            return MB_ICONEXCLAMATION;
        case MessageIcon::Question:
            return MB_ICONQUESTION;
    }
    return 0;
}

}  // namespace

MessageAnswer ShowMessageBox(void* owner, const std::wstring& text, const std::wstring& title,
                             MessageButtons buttons, MessageIcon icon) {
    const HWND active = GetActiveWindow();
    const HWND window = active == nullptr ? static_cast<HWND>(owner) : active;
    switch (MessageBoxW(window, text.c_str(), title.c_str(), StyleOf(buttons) | StyleOf(icon))) {
        case IDOK:
            return MessageAnswer::Ok;
        case IDYES:
            return MessageAnswer::Yes;
        case IDNO:
            return MessageAnswer::No;
        case IDCANCEL:
            return MessageAnswer::Cancel;
        default:
            return MessageAnswer::None;  // there is no memory for a box
    }
}

}  // namespace marlo::platform
