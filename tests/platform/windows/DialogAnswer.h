#pragma once

#include <functional>
#include <string>
#include <windows.h>

namespace marlo::test {

/// Answers the system's next dialog on this thread while the test waits for it.
class DialogAnswer {
  public:
    using Question = std::function<bool(HWND)>;

    /// @param answer called once, when the dialog is there.
    /// @param isDue whether what is to happen in the dialog first has happened; after ten seconds
    ///        the dialog is answered anyway.
    explicit DialogAnswer(std::function<void(HWND)> answer, Question isDue = {});
    DialogAnswer(const DialogAnswer&) = delete;
    DialogAnswer& operator=(const DialogAnswer&) = delete;
    DialogAnswer(DialogAnswer&&) = delete;
    DialogAnswer& operator=(DialogAnswer&&) = delete;
    ~DialogAnswer();

    bool WasGiven() const { return !answer_; }

  private:
    static void CALLBACK Look(HWND window, UINT message, UINT_PTR timer, DWORD time);

    std::function<void(HWND)> answer_;
    Question isDue_;
    ULONGLONG end_;
    UINT_PTR timer_;
};

/// Presses a button of a dialog. @param button IDOK, IDCANCEL and so on.
void Press(HWND dialog, int button);

std::string TextOf(HWND window);

/// Whether a control of a dialog shows a text.
bool Shows(HWND dialog, const std::string& text);

}  // namespace marlo::test
