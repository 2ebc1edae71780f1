#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <vector>
#include <wx/dialog.h>
#include <wx/modalhook.h>

namespace marlo::test {

/// What a test does with the dialogs that open, one after the other: each is handled by the next of
/// the handlers that were given, which runs while the dialog is shown and has the keyboard. A
/// dialog that nobody expects, one that is left open, and a handler that is left over fail the
/// test.
class DialogHandlers final : public wxModalDialogHook {
  public:
    DialogHandlers() { Register(); }
    DialogHandlers(const DialogHandlers&) = delete;
    DialogHandlers& operator=(const DialogHandlers&) = delete;
    DialogHandlers(DialogHandlers&&) = delete;
    DialogHandlers& operator=(DialogHandlers&&) = delete;
    ~DialogHandlers() override;

    using Handler = std::function<void(wxDialog&)>;

    /// The next dialog is shown, and `handler` called when it is there. It has to close it.
    void Handle(Handler handler) { handlers_.push_back(std::move(handler)); }

    /// How many dialogs have opened.
    std::size_t Count() const { return count_; }

  protected:
    int Enter(wxDialog* dialog) override;
    void Exit(wxDialog* dialog) override;

  private:
    std::deque<Handler> handlers_;
    std::vector<const wxDialog*> open_;
    std::size_t count_ = 0;
};

}  // namespace marlo::test
