#pragma once

#include <functional>
#include <string>
#include <windows.h>

namespace marlo::test {

/// Answers the system's next dialog on this thread while the test waits for it.
class DialogAnswer {
  public:
    /// @param answer called once, when the dialog is there.
    explicit DialogAnswer(std::function<void(HWND)> answer);
    DialogAnswer(const DialogAnswer&) = delete;
    DialogAnswer& operator=(const DialogAnswer&) = delete;
    DialogAnswer(DialogAnswer&&) = delete;
    DialogAnswer& operator=(DialogAnswer&&) = delete;
    ~DialogAnswer();

    bool WasGiven() const { return !answer_; }

  private:
    static void CALLBACK Look(HWND window, UINT message, UINT_PTR timer, DWORD time);

    std::function<void(HWND)> answer_;
    UINT_PTR timer_;
};

/// Presses a button of a dialog. @param button IDOK, IDCANCEL and so on.
void Press(HWND dialog, int button);

/// Lets events run until something is so, or for as long as a slow machine may take.
/// @return whether it is.
bool WaitUntil(const std::function<bool()>& isSo);

std::string TextOf(HWND window);

/// Whether a control of a dialog shows a text.
bool Shows(HWND dialog, const std::string& text);

}  // namespace marlo::test
