#include "tests/platform/windows/DialogAnswer.h"

#include <array>
#include <utility>

#include "tests/support/windows/SystemDialog.h"

namespace marlo::test {

namespace {

/// A timer's routine gets nothing but its number.
DialogAnswer* current = nullptr;

BOOL CALLBACK TakeDialog(HWND window, LPARAM found) {
    if (!IsShownDialog(window))
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

HWND OpenDialog() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), TakeDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

struct TextSearch {
    const std::string& text;
    bool isFound = false;
};

BOOL CALLBACK LookForText(HWND window, LPARAM data) {
    auto& search = *reinterpret_cast<TextSearch*>(data);
    search.isFound = search.isFound || TextOf(window) == search.text;
    return TRUE;
}

}  // namespace

DialogAnswer::DialogAnswer(std::function<void(HWND)> answer, Question isDue)
    : answer_(std::move(answer)),
      isDue_(std::move(isDue)),
      end_(GetTickCount64() + 10000),
      timer_(SetTimer(nullptr, 0, 50, Look)) {
    current = this;
}

DialogAnswer::~DialogAnswer() {
    KillTimer(nullptr, timer_);
    current = nullptr;
}

void DialogAnswer::Look(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
    const HWND dialog = OpenDialog();
    if (dialog == nullptr || !current->answer_)
        return;
    const bool isDue =
        !current->isDue_ || current->isDue_(dialog) || GetTickCount64() > current->end_;
    if (isDue)
        std::exchange(current->answer_, nullptr)(dialog);
}

void Press(HWND dialog, int button) {
    PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
}

std::string TextOf(HWND window) {
    std::array<char, 1000> text{};
    SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    return text.data();
}

bool Shows(HWND dialog, const std::string& text) {
    TextSearch search{text};
    EnumChildWindows(dialog, LookForText, reinterpret_cast<LPARAM>(&search));
    return search.isFound;
}

}  // namespace marlo::test
