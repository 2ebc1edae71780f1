#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>
#include <wx/dialog.h>
#include <wx/modalhook.h>
#include <wx/uiaction.h>
#include <wx/window.h>

#include <gtest/gtest.h>

#include "app/gui/Form1Window.h"
#include "tests/support/ApplicationTest.h"
#include "tools/ProjectWriter.h"

namespace marlo::test {

/// Runs events until `isReached`, at most some seconds.
/// @return whether it was reached.
bool RunEventsUntil(const std::function<bool()>& isReached);

/// Runs events that are due, and those that they lead to.
void RunEvents();

/// What a test does with the dialogs that open, one after the other: each is handled by the next of
/// the handlers that were given, which runs while the dialog is shown.
class DialogHandlers final : public wxModalDialogHook {
  public:
    DialogHandlers() { Register(); }
    DialogHandlers(const DialogHandlers&) = delete;
    DialogHandlers& operator=(const DialogHandlers&) = delete;
    ~DialogHandlers() override { Unregister(); }

    using Handler = std::function<void(wxDialog&)>;

    /// The next dialog is shown, and `handler` called when it is there. It has to close it.
    void Handle(Handler handler) { handlers_.push_back(std::move(handler)); }

    /// How many dialogs have opened.
    std::size_t Count() const { return count_; }

  protected:
    int Enter(wxDialog* dialog) override;

  private:
    std::deque<Handler> handlers_;
    std::size_t count_ = 0;
};

/// A test of the real window, driven by clicks and keys, on an application in a temporary folder.
class GuiTest : public ApplicationTest {
  protected:
    GuiTest();
    ~GuiTest() override;

    /// Opens the window and waits until it is there.
    void Open();
    /// Closes the window as the user does, and waits until it is gone.
    void CloseWindow();

    /// A control by its name, in any open window; fails the test when there is none.
    template <class Control = wxWindow>
    Control& Find(const std::string& name) {
        return dynamic_cast<Control&>(FindAny(name));
    }
    wxWindow& Item(std::size_t index) { return Find("cmdbuttons(" + std::to_string(index) + ")"); }

    /// Moves the mouse to the middle of a control, or to a point in it, and clicks.
    void Click(wxWindow& control);
    void ClickAt(wxWindow& control, const wxPoint& point);
    void DoubleClickAt(wxWindow& control, const wxPoint& point);
    void MoveTo(wxWindow& control);
    void MoveTo(wxWindow& control, const wxPoint& point);
    /// Presses a key. @param modifiers of wxMOD_….
    void Press(int key, int modifiers = wxMOD_NONE);
    void Type(const std::string& text);
    /// Types a path into the desktop's own picker, which is shown, and presses Enter.
    void ChooseInPicker(const wxDialog& picker, const std::string& path);

    /// Makes the result files of one project and two plug-ins, one of which is installed.
    void WriteResultFiles() const;
    /// Writes a project file with one plug-in. @return its path.
    std::string AddProject(const std::string& name, const std::string& plugin = "Reverb") const;

    gui::LedgerList& List() { return Find<gui::LedgerList>("lstSongs"); }
    Form1& Logic() { return window_->Logic(); }

    /// The point in the list's rows where a row, counted from 0, can be clicked, and the window
    /// that the rows are in.
    wxWindow& Rows();
    wxPoint RowPoint(long row);

    DialogHandlers dialogs;

  private:
    wxWindow& FindAny(const std::string& name);

    wxUIActionSimulator mouse_;
    gui::Form1Window* window_ = nullptr;  ///< owned by the toolkit
};

}  // namespace marlo::test
