#pragma once

#include <string>
#include <wx/dialog.h>

namespace marlo::test {

/// A dialog that was shown: one of the program's own windows, or a message box or a picker, which
/// are the toolkit's on some systems and the system's on others.
class Dialog {
  public:
    Dialog() = default;
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    Dialog(Dialog&&) = delete;
    Dialog& operator=(Dialog&&) = delete;
    virtual ~Dialog() = default;

    /// What it says that it is for.
    virtual std::string Title() const = 0;
    virtual bool IsOpen() const = 0;
    /// Whether keys that are pressed go to it.
    virtual bool HasKeyboard() const = 0;
    /// Ends it as if the user cancelled.
    virtual void Cancel() = 0;

    /// One of the program's own, or the toolkit's.
    virtual wxDialog& Window() const;

    // For a message box.

    virtual std::string Message() const;
    /// Its buttons, and its icon if it has one, of wxOK, ….
    virtual long MessageStyle() const;

    // For a picker.

    /// Types a path, which the picker takes when Enter is pressed.
    virtual void EnterPath(const std::string& path);
    /// Chooses which kind of file is shown. @param index from 0.
    virtual void ChooseKind(int index);
};

/// A dialog of the toolkit's.
class ToolkitDialog : public Dialog {
  public:
    /// @param window lives as long as it is shown, and so do most of this one's answers.
    explicit ToolkitDialog(wxDialog& window) : window_(window) {}

    std::string Title() const override;
    bool IsOpen() const override { return window_.IsModal() && window_.IsShown(); }
    bool HasKeyboard() const override;
    void Cancel() override { window_.EndModal(wxID_CANCEL); }
    wxDialog& Window() const override { return window_; }

  private:
    wxDialog& window_;
};

}  // namespace marlo::test
