#include "tests/gui/windows/NativeDialog.h"

#include <array>
#include <stdexcept>
#include <utility>
#include <wx/msgdlg.h>
// Both need what is above.
#include <dlgs.h>
#include <shlobj.h>

#include "tests/support/windows/FolderTimes.h"

namespace marlo::test {

namespace {

constexpr int kFolderPrompt = 0x3742;  // in every folder picker

std::string TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return wxString(text).utf8_string();
}

bool IsShown(HWND control) {
    return control != nullptr && (GetWindowLongW(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

/// The label in a message box that is its icon, or the one that is its text; nullptr for none.
HWND LabelIn(HWND box, bool isIcon) {
    for (HWND label = FindWindowExW(box, nullptr, L"Static", nullptr); label != nullptr;
         label = FindWindowExW(box, label, L"Static", nullptr)) {
        const bool hasIcon = (GetWindowLongW(label, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
        if (hasIcon == isIcon && IsShown(label))
            return label;
    }
    return nullptr;
}

long IconStyle(HWND box) {
    const LRESULT shown = SendMessageW(LabelIn(box, true), STM_GETICON, 0, 0);
    if (shown == 0)
        return 0;
    for (const auto& [name, style] :
         {std::pair(IDI_INFORMATION, wxICON_INFORMATION),
          std::pair(IDI_EXCLAMATION, wxICON_EXCLAMATION), std::pair(IDI_QUESTION, wxICON_QUESTION)})
        if (shown == reinterpret_cast<LRESULT>(LoadIcon(nullptr, name)))
            return style;
    throw std::runtime_error("a message box has an icon that nobody knows");
}

}  // namespace

std::string NativeDialog::Title() const {
    const HWND prompt = GetDlgItem(window_, kFolderPrompt);
    return TextOf(prompt == nullptr ? window_ : prompt);
}

bool NativeDialog::HasKeyboard() const {
    return GetForegroundWindow() == window_ && GetActiveWindow() == window_;
}

std::string NativeDialog::Message() const {
    return TextOf(LabelIn(window_, false));
}

long NativeDialog::MessageStyle() const {
    long style = IconStyle(window_);
    for (const auto& [id, button] : {std::pair(IDOK, wxOK), std::pair(IDYES, wxYES),
                                     std::pair(IDNO, wxNO), std::pair(IDCANCEL, wxCANCEL)})
        if (IsShown(GetDlgItem(window_, id)))
            style |= button;
    return style;
}

void NativeDialog::EnterPath(const std::string& path) {
    const std::wstring text = wxString::FromUTF8(path).ToStdWstring();
    for (const int field : {edt1, cmb13})
        if (GetDlgItem(window_, field) != nullptr) {
            SetDlgItemTextW(window_, field, text.c_str());
            return;
        }
    // A folder picker has no field.
    SettleTimes(path);
    SendMessageW(window_, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

void NativeDialog::ChooseKind(int index) {
    const HWND list = GetDlgItem(window_, cmb1);
    SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageW(window_, WM_COMMAND, MAKEWPARAM(cmb1, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
}

std::vector<std::string> NativeDialog::Kinds() const {
    std::vector<std::string> kinds;
    const HWND list = GetDlgItem(window_, cmb1);
    const LRESULT count = SendMessageW(list, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const auto index = static_cast<WPARAM>(i);
        std::wstring text(static_cast<std::size_t>(SendMessageW(list, CB_GETLBTEXTLEN, index, 0)),
                          L'\0');
        SendMessageW(list, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
        kinds.push_back(wxString(text).utf8_string());
    }
    return kinds;
}

}  // namespace marlo::test
