#pragma once

#include <functional>
#include <string>
#include <wx/notebook.h>

#include "tests/gui/GuiTest.h"

namespace marlo::test {

/// A test of the Options dialog, opened from the real window.
class OptionsGuiTest : public GuiTest {
  protected:
    OptionsGuiTest() { Open(); }

    /// Opens the dialog and calls `body`, which has to close it.
    void InOptions(const std::function<void()>& body);

    template <class Control = wxWindow>
    Control& Part(const std::string& name) {
        return Find<Control>(name, dialog_);
    }
    wxNotebook& Tabs() { return Part<wxNotebook>("Tabs"); }
    void SelectTab(int tab);

    /// Opens the picker of programs, which `handler` has to close.
    void InProgramPicker(const std::function<void(Dialog&)>& handler);

  private:
    wxDialog* dialog_ = nullptr;
};

}  // namespace marlo::test
