#include "tests/soak/OpenDialogs.h"

#include <algorithm>
#include <wx/dirdlg.h>
#include <wx/filedlg.h>
#include <wx/msgdlg.h>

#include "tests/soak/Failure.h"

namespace marlo::soak {

namespace {

const char* const kNames[] = {"dialog: frmOptions",
                              "dialog: frmAbout",
                              "dialog: folder picker of Form1",
                              "dialog: folder picker of frmOptions",
                              "dialog: file picker of frmOptions",
                              "dialog: save picker of Form1"};

std::string NameOf(const wxDialog& dialog) {
    if (const auto* const box = dynamic_cast<const wxMessageDialogBase*>(&dialog))
        return "message: " + box->GetMessage().utf8_string();
    const std::string owner =
        dialog.GetParent() == nullptr ? "nothing" : dialog.GetParent()->GetName().utf8_string();
    if (dynamic_cast<const wxDirDialog*>(&dialog) != nullptr)
        return "dialog: folder picker of " + owner;
    if (dynamic_cast<const wxFileDialog*>(&dialog) != nullptr)
        return (dialog.HasFlag(wxFD_SAVE) ? "dialog: save picker of " : "dialog: file picker of ") +
               owner;
    return "dialog: " + dialog.GetName().utf8_string();
}

std::string PathIn(const wxDialog& dialog) {
    if (const auto* const picker = dynamic_cast<const wxDirDialog*>(&dialog))
        return picker->GetPath().utf8_string();
    if (const auto* const picker = dynamic_cast<const wxFileDialog*>(&dialog))
        return picker->GetPath().utf8_string();
    return {};
}

}  // namespace

OpenDialogs::OpenDialogs(const Playground& playground, Record& record)
    : playground_(playground), record_(record) {
    for (const char* name : kNames)
        record_.Require(name);
    Register();
}

bool OpenDialogs::IsPicker(const wxDialog& dialog) {
    return dynamic_cast<const wxDirDialog*>(&dialog) != nullptr ||
           dynamic_cast<const wxFileDialog*>(&dialog) != nullptr;
}

int OpenDialogs::Enter(wxDialog* dialog) {
    // Some kinds of dialog say twice that they open.
    if (std::find(open_.begin(), open_.end(), dialog) == open_.end()) {
        open_.push_back(dialog);
        record_.Count(NameOf(*dialog));
    }
    return wxID_NONE;
}

void OpenDialogs::Exit(wxDialog* dialog) {
    std::erase(open_, dialog);
    const std::string path = PathIn(*dialog);
    if (!path.empty() && !playground_.Contains(path))
        Fail(NameOf(*dialog) + " has led out of the playground, to " + path);
}

}  // namespace marlo::soak
