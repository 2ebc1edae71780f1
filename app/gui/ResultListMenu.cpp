#include "app/gui/ResultListMenu.h"

#include <wx/clipbrd.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/menu.h>

#include "app/gui/MessageBox.h"
#include "app/gui/TextConversion.h"
#include "reports/ListPage.h"
#include "ui/SaveList.h"

namespace marlo::gui {

namespace {

bool MayReplace(wxWindow* owner, const wxString& path) {
    return ShowMessageBox(owner, {.text = FieldOf(wxFileName(path).GetFullName()) +
                                          " is there already. Do you want to replace it?",
                                  .buttons = MessageButtons::YesNo,
                                  .icon = MessageIcon::Question}) == MessageAnswer::Yes;
}

/// Lets the user choose a file, and saves the list there.
void SaveListAs(wxWindow* owner, Form1& form) {
    wxFileDialog dialog(owner, "Save list as", "", "Marlo list.csv",
                        "Comma-separated values (*.csv)|*.csv|Web page (*.html)|*.html",
                        wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    if (dialog.ShowModal() != wxID_OK)
        return;
    const std::string chosen = PathOf(dialog.GetPath());
    // Choosers leave the name alone when the user picks the other kind, and have asked about that
    // name only.
    constexpr int pageFilter = 1;
    const std::string path = dialog.GetFilterIndex() == pageFilter ? PagePath(chosen) : chosen;
    if (path != chosen && wxFileName::FileExists(ToolkitPath(path)) &&
        !MayReplace(owner, ToolkitPath(path)))
        return;
    form.SaveList(path);
}

}  // namespace

void CopySelectedRows(const LedgerList& list, const ResultList& rows) {
    const std::string text = RowsAsText(rows, list.SelectedPositions());
    if (text.empty() || !wxTheClipboard->Open())
        return;
    wxTheClipboard->SetData(new wxTextDataObject(wxString::FromUTF8(text)));
    wxTheClipboard->Close();
}

void KeepCopiedRows() {
    wxTheClipboard->Flush();
}

void ShowResultListMenu(LedgerList& list, Form1& form) {
    const bool hasSelection = list.ActivePosition() > 0;
    wxMenu menu;
    wxMenuItem* const open = menu.Append(wxID_OPEN, "Open");
    wxMenuItem* const copy = menu.Append(wxID_COPY, "Copy\tCtrl+C");
    menu.AppendSeparator();
    wxMenuItem* const save = menu.Append(wxID_SAVEAS, wxString::FromUTF8("Save list as\u2026"));
    open->Enable(hasSelection);
    copy->Enable(hasSelection);
    save->Enable(form.lstSongs().ColumnCount() > 0);
    switch (list.GetPopupMenuSelectionFromUser(menu)) {
        case wxID_OPEN:
            return form.lstSongs_DblClick();
        case wxID_COPY:
            return CopySelectedRows(list, form.lstSongs());
        case wxID_SAVEAS:
            return SaveListAs(list.GetParent(), form);
        default:
            return;
    }
}

}  // namespace marlo::gui
