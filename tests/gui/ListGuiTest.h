#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/gui/GuiTest.h"
#include "tests/gui/ListRows.h"

class wxMenu;

namespace marlo::test {

using Texts = std::vector<std::string>;

/// A test of what the result list shows, and of what the user does in it. Rows and columns are
/// counted from 0.
class ListGuiTest : public GuiTest {
  protected:
    gui::LedgerList& List() { return Find<gui::LedgerList>("lstSongs"); }

    Texts Headers();
    /// The texts of all rows.
    std::vector<Texts> Cells();
    /// The texts of one column.
    Texts Column(int column);

    void ClickHeader(int column);
    void ClickRow(long row, int button = wxMOUSE_BTN_LEFT);
    void RightClickBelowTheRows();
    void DoubleClickHeader(int column);
    void DoubleClickRow(long row);
    void DoubleClickBelowTheRows();

    /// Calls `handler`, which has to close it, while the context menu is open.
    /// @param open opens the menu, and comes back when it is closed.
    void InMenu(const std::function<void()>& open, const std::function<void(wxMenu&)>& handler);
    /// Chooses an entry of the context menu.
    /// @param steps how many times the Down key leads to it; it passes by disabled entries.
    void ChooseInMenu(int steps, const std::function<void()>& open);

  private:
    wxPoint PointBelowTheRows();

    bool isClickOnTheLeft_ = false;
};

}  // namespace marlo::test
