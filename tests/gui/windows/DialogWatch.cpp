#include "tests/gui/DialogWatch.h"

#include <set>
#include <utility>
#include <wx/modalhook.h>
#include <wx/msw/private.h>

#include "tests/gui/Events.h"
#include "tests/gui/windows/NativeDialog.h"
#include "tests/support/windows/SystemDialog.h"

namespace marlo::test {

namespace {

BOOL CALLBACK TakeNativeDialog(HWND window, LPARAM dialogs) {
    if (IsShownDialog(window) && wxFindWinFromHandle(window) == nullptr)
        reinterpret_cast<std::set<HWND>*>(dialogs)->insert(window);
    return TRUE;
}

/// The dialogs on the screen that are not the toolkit's.
std::set<HWND> NativeDialogs() {
    std::set<HWND> dialogs;
    EnumThreadWindows(GetCurrentThreadId(), TakeNativeDialog, reinterpret_cast<LPARAM>(&dialogs));
    return dialogs;
}

}  // namespace

class DialogWatch::Watch final : private wxModalDialogHook {
  public:
    explicit Watch(OnOpen onOpen) : onOpen_(std::move(onOpen)) { Register(); }

  private:
    int Enter(wxDialog* dialog) override {
        // Without a window of the toolkit's, the system will show one.
        if (dialog->GetHandle() != nullptr)
            onOpen_(std::make_shared<ToolkitDialog>(*dialog));
        return wxID_NONE;
    }

    void Look() {
        const std::set<HWND> before = std::exchange(open_, NativeDialogs());
        for (HWND const dialog : open_)
            if (!before.contains(dialog))
                onOpen_(std::make_shared<NativeDialog>(dialog));
    }

    OnOpen onOpen_;
    std::set<HWND> open_;
    Observer observer_{[this] { Look(); }};
};

DialogWatch::DialogWatch(OnOpen onOpen) : watch_(std::make_unique<Watch>(std::move(onOpen))) {}

DialogWatch::~DialogWatch() = default;

}  // namespace marlo::test
