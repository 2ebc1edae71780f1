#include "app/gui/MessageBox.h"

// The second one builds on the first.
// clang-format off
#include <wx/msgdlg.h>
#include <wx/generic/msgdlgg.h>
// clang-format on

#include "app/gui/TextConversion.h"

namespace marlo::gui {

namespace {

long ButtonStyle(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::Ok:
            return wxOK;
        case MessageButtons::OkCancel:
            return wxOK | wxCANCEL;
        case MessageButtons::YesNo:
            return wxYES_NO;
        case MessageButtons::YesNoCancel:
            return wxYES_NO | wxCANCEL;
    }
    return wxOK;
}

long IconStyle(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
            return 0;  // the toolkit has a flag for it, and does not know it everywhere
        case MessageIcon::Information:
            return wxICON_INFORMATION;
        case MessageIcon::Exclamation:
            return wxICON_EXCLAMATION;
        case MessageIcon::Question:
            return wxICON_QUESTION;
    }
    return 0;
}

}  // namespace

MessageAnswer ShowMessageBox(wxWindow* owner, const Message& message) {
    // Not every desktop's own box shows its icon.
    wxGenericMessageDialog box(owner, Shown(message.text), Shown(message.title),
                               ButtonStyle(message.buttons) | IconStyle(message.icon) | wxCENTRE);
    switch (box.ShowModal()) {
        case wxID_OK:
            return MessageAnswer::Ok;
        case wxID_YES:
            return MessageAnswer::Yes;
        case wxID_NO:
            return MessageAnswer::No;
        default:
            return MessageAnswer::Cancel;
    }
}

}  // namespace marlo::gui
