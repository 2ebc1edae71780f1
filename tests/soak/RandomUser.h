#pragma once

#include <cstdint>
#include <random>

#include "app/gui/Form1Window.h"
#include "tests/soak/Input.h"
#include "tests/soak/OpenDialogs.h"
#include "tests/soak/Record.h"

namespace marlo::soak {

/// Somebody who does anything to the window and to the dialogs over it. In the desktop's own
/// pickers, which could make and delete folders anywhere, it is Enter and Escape only.
class RandomUser {
  public:
    RandomUser(std::uint32_t seed, const OpenDialogs& dialogs, Record& record);

    /// Does one thing.
    void Act(gui::Form1Window& window);

    /// Does one thing that brings the window nearer to rest.
    /// @return what keeps it from that; nullptr when it is at rest: open as usual, without a
    /// dialog, a menu or a run.
    const char* Calm(gui::Form1Window& window);

  private:
    struct Action;

    int Number(int from, int to);
    bool IsLuck(int percent) { return Number(1, 100) <= percent; }
    template <class Things>
    const auto& AnyOf(const Things& things) {
        return things[static_cast<std::size_t>(Number(0, static_cast<int>(things.size()) - 1))];
    }
    wxWindow* AnyControl(wxWindow& window);
    wxPoint AnyPointIn(const wxWindow& control);
    void MoveInto(wxWindow& control);
    static void Press(unsigned key, Modifier modifier = Modifier::Nothing);

    void AnswerPicker(wxDialog& picker);
    void UseMenu();
    void Click(wxTopLevelWindow& window);
    void DoubleClick(wxTopLevelWindow& window);
    void RightClick(wxTopLevelWindow& window);
    void Drag(wxTopLevelWindow& window);
    void TurnPage(wxTopLevelWindow& window);
    void ClickButton(wxTopLevelWindow& window);
    void ClickButtonIn(wxWindow& window);
    void PressAnyKey(wxTopLevelWindow& window);
    void Resize(wxTopLevelWindow& window);
    void Move(wxTopLevelWindow& window);
    void Minimise(wxTopLevelWindow& window);
    void Close(wxTopLevelWindow& window);

    std::mt19937 random_;
    const OpenDialogs& dialogs_;
    Record& record_;
};

}  // namespace marlo::soak
