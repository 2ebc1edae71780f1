#include "tests/gui/DialogWatch.h"

#include <algorithm>
#include <utility>
#include <vector>
#include <wx/clipbrd.h>
#include <wx/filedlg.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>
#include <wx/uiaction.h>

#include "tests/gui/Events.h"

namespace marlo::test {

namespace {

/// All of them are the toolkit's.
class LinuxDialog final : public ToolkitDialog {
  public:
    using ToolkitDialog::ToolkitDialog;

    std::string Message() const override { return Box().GetMessage().utf8_string(); }

    long MessageStyle() const override {
        long style = Box().GetMessageDialogStyle() & wxICON_MASK & ~wxICON_NONE;
        for (const auto& [id, button] :
             {std::pair(wxID_OK, wxOK), std::pair(wxID_YES, wxYES), std::pair(wxID_NO, wxNO),
              std::pair(wxID_CANCEL, wxCANCEL)})
            if (Box().FindWindow(id) != nullptr)
                style |= button;
        return style;
    }

    void EnterPath(const std::string& path) override {
        Press('L');
        Press('A');
        const wxClipboardLocker clipboard;
        wxTheClipboard->SetData(new wxTextDataObject(wxString::FromUTF8(path)));
        Press('V');
    }

    void ChooseKind(int index) override {
        dynamic_cast<wxFileDialog&>(Window()).SetFilterIndex(index);
        RunEvents();
    }

  private:
    const wxMessageDialogBase& Box() const {
        return dynamic_cast<const wxMessageDialogBase&>(Window());
    }

    static void Press(int key) {
        wxUIActionSimulator().Char(key, wxMOD_CONTROL);
        RunEvents();
    }
};

}  // namespace

class DialogWatch::Watch final : private wxModalDialogHook {
  public:
    explicit Watch(OnOpen onOpen) : onOpen_(std::move(onOpen)) { Register(); }

  private:
    int Enter(wxDialog* dialog) override {
        // Some kinds of dialog say twice that they open.
        if (std::find(open_.begin(), open_.end(), dialog) == open_.end()) {
            open_.push_back(dialog);
            onOpen_(std::make_shared<LinuxDialog>(*dialog));
        }
        return wxID_NONE;
    }

    void Exit(wxDialog* dialog) override { std::erase(open_, dialog); }

    OnOpen onOpen_;
    std::vector<const wxDialog*> open_;
};

DialogWatch::DialogWatch(OnOpen onOpen) : watch_(std::make_unique<Watch>(std::move(onOpen))) {}

DialogWatch::~DialogWatch() = default;

}  // namespace marlo::test
