#pragma once

#include <deque>
#include <functional>
#include <memory>

#include "tests/gui/DialogWatch.h"

namespace marlo::test {

/// What a test does with the dialogs that open, one after the other: each is handled by the next of
/// the handlers that were given, which runs while the dialog is shown and has the keyboard. A
/// dialog that nobody expects, one that is left open, and a handler that is left over fail the
/// test.
class DialogHandlers final {
  public:
    DialogHandlers();
    DialogHandlers(const DialogHandlers&) = delete;
    DialogHandlers& operator=(const DialogHandlers&) = delete;
    DialogHandlers(DialogHandlers&&) = delete;
    DialogHandlers& operator=(DialogHandlers&&) = delete;
    ~DialogHandlers();

    using Handler = std::function<void(Dialog&)>;

    /// The next dialog is shown, and `handler` called when it is there. It has to close it.
    void Handle(Handler handler) { handlers_.push_back(std::move(handler)); }

  private:
    void OnOpen(std::shared_ptr<Dialog> dialog);

    std::deque<Handler> handlers_;
    DialogWatch watch_;
};

}  // namespace marlo::test
