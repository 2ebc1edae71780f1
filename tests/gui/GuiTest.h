#pragma once

#include <functional>
#include <set>
#include <string>
#include <wx/uiaction.h>
#include <wx/window.h>

#include <gtest/gtest.h>

#include "app/gui/Form1Window.h"
#include "tests/gui/DialogHandlers.h"
#include "tests/gui/Display.h"
#include "tests/gui/Events.h"
#include "tests/support/ApplicationTest.h"

namespace marlo::test {

/// A test of the real window, driven by clicks and keys, on an application in a temporary folder.
class GuiTest : public ApplicationTest {
  public:
    GuiTest(const GuiTest&) = delete;
    GuiTest& operator=(const GuiTest&) = delete;
    GuiTest(GuiTest&&) = delete;
    GuiTest& operator=(GuiTest&&) = delete;
    ~GuiTest() override;

  protected:
    GuiTest();

    /// Opens the window and waits until it is there.
    void Open();
    /// Closes the window as the user does, and waits until it is gone.
    void CloseWindow();

    /// A control by its name, in any open window or in one; fails the test when there is none.
    template <class Control = wxWindow>
    Control& Find(const std::string& name, const wxWindow* window = nullptr) {
        return dynamic_cast<Control&>(FindAny(name, window));
    }
    gui::CommandItemControl& Item(std::size_t index) {
        return Find<gui::CommandItemControl>("cmdbuttons(" + std::to_string(index) + ")");
    }
    gui::Form1Window& Window() { return *window_; }
    bool IsWindowOpen() const { return window_ != nullptr; }
    Form1& Logic() { return window_->Logic(); }
    /// What one of the boxes "Text1" and "Text2" at the bottom of the window shows.
    std::string StatusText(const std::string& box);
    /// Where a control stands, from the left top of the window's client area, in pixels.
    wxRect PlaceOf(const wxWindow& control) const;
    /// The indexes of the command items that can be used now.
    std::set<std::size_t> EnabledItems();

    /// The name of the control that has the focus; "" for none.
    std::string FocusedName();

    /// Moves the mouse to about the middle of a control, or to a point in it, and clicks.
    void Click(wxWindow& control);
    void ClickAt(wxWindow& control, const wxPoint& point, int button = wxMOUSE_BTN_LEFT);
    void DoubleClickAt(wxWindow& control, const wxPoint& point);
    void MoveTo(wxWindow& control);
    void MoveTo(wxWindow& control, const wxPoint& point);
    /// Presses a key. @param modifiers of wxMOD_….
    void Press(int key, int modifiers = wxMOD_NONE);
    void Type(const std::string& text);
    /// The same as `Click` and `Press`, where the mouse is now, for the middle of a command: runs
    /// no events.
    void SendClick() { mouse_.MouseClick(); }
    void SendKey(int key) { mouse_.Char(key); }
    /// Puts a text into the field that has the focus, faster than by typing.
    void Paste(const std::string& text);

    /// Expects a dialog to be a message box. @param style its buttons, and its icon if it has one,
    /// of wxOK, ….
    static void ExpectMessageBox(const Dialog& box, const std::string& text, long style,
                                 const std::string& title = "Marlo");
    /// Reads all folders on the way to a path. Some pickers do not find one whose time of access
    /// changes meanwhile.
    static void ReadFoldersTo(const std::string& path);
    /// Chooses a path in a picker.
    void ChooseInPicker(Dialog& picker, const std::string& path);

    /// Puts the program's pictures into the application folder.
    void AddPictures() const;
    /// Makes the result files of one project and two plug-ins, one of which is installed.
    void WriteResultFiles() const;
    /// Writes a project file with one plug-in. @return its path.
    std::string AddProject(const std::string& name, const std::string& plugin = "Reverb") const;

    DialogHandlers dialogs;

  private:
    static wxWindow& FindAny(const std::string& name, const wxWindow* window);

    wxUIActionSimulator mouse_;
    bool isClickOnTheLeft_ = false;
    gui::Form1Window* window_ = nullptr;  ///< owned by the toolkit
};

}  // namespace marlo::test
