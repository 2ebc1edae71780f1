#pragma once

#include <string>
#include <vector>
#include <windows.h>

#include "tests/gui/Dialog.h"

namespace marlo::test {

/// A dialog of the system's.
class NativeDialog final : public Dialog {
  public:
    explicit NativeDialog(HWND window) : window_(window) {}

    std::string Title() const override;
    bool IsOpen() const override { return IsWindowVisible(window_) != FALSE; }
    bool HasKeyboard() const override;
    void Cancel() override { EndDialog(window_, IDCANCEL); }

    std::string Message() const override;
    long MessageStyle() const override;

    void EnterPath(const std::string& path) override;
    void ChooseKind(int index) override;
    /// The kinds of file that a picker offers.
    std::vector<std::string> Kinds() const;

  private:
    HWND window_;
};

}  // namespace marlo::test
