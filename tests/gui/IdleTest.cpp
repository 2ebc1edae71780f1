#include <functional>
#include <set>
#include <string>
#include <utility>
#include <wx/eventfilter.h>
#include <wx/timer.h>
#include <wx/weakref.h>

#include "tests/gui/GuiTest.h"

namespace marlo {
namespace {

/// Tells of each event of a type, before it is handled.
class EventWatch final : private wxEventFilter {
  public:
    EventWatch(wxEventType type, std::function<void(wxEvent&)> look)
        : type_(type), look_(std::move(look)) {
        wxEvtHandler::AddFilter(this);
    }
    EventWatch(const EventWatch&) = delete;
    EventWatch& operator=(const EventWatch&) = delete;
    EventWatch(EventWatch&&) = delete;
    EventWatch& operator=(EventWatch&&) = delete;
    ~EventWatch() override { wxEvtHandler::RemoveFilter(this); }

  private:
    int FilterEvent(wxEvent& event) override {
        if (event.GetEventType() == type_)
            look_(event);
        return Event_Skip;
    }

    wxEventType type_;
    std::function<void(wxEvent&)> look_;
};

/// What the window puts off until it has nothing else to do.
using IdleTest = test::GuiTest;

TEST_F(IdleTest, OnlyTheDonateButtonHasATimer) {
    AddPictures();
    std::set<int> intervals;
    const EventWatch watch(wxEVT_TIMER, [&](wxEvent& event) {
        intervals.insert(dynamic_cast<wxTimerEvent&>(event).GetInterval());
    });
    Open();
    EXPECT_TRUE(test::RunEventsUntil([&] { return test::HasIcon(Window()); }));
    EXPECT_TRUE(test::RunEventsUntil([&] { return intervals.contains(1000); }));
    dialogs.Handle([&](test::Dialog& /*about*/) {
        Window().wxFrame::Close();
        Press(WXK_ESCAPE);
    });
    Click(Item(kAboutItem));
    EXPECT_TRUE(test::RunEventsUntil([&] { return !IsWindowOpen(); }));
    EXPECT_EQ(intervals, std::set<int>{1000});
}

TEST_F(IdleTest, IconsAreLookedUpWhenTheWindowHasBeenPainted) {
    std::set<std::string> painted;
    const EventWatch watch(wxEVT_PAINT, [&](wxEvent& event) {
        const auto& control = dynamic_cast<const wxWindow&>(*event.GetEventObject());
        painted.insert(control.GetName().utf8_string());
    });
    bool isLookedUp = false;
    std::set<std::string> paintedBefore;
    desktop.onSmallIcon = [&] {
        if (!std::exchange(isLookedUp, true))
            paintedBefore = painted;
    };
    Open();
    EXPECT_TRUE(test::RunEventsUntil([&] { return isLookedUp; }));
    for (const char* name : {"imgMenu", "cmdbuttons(0)", "btnDonate", "imgRightPane", "Text2"})
        EXPECT_TRUE(paintedBefore.contains(name)) << name;
}

TEST_F(IdleTest, AWindowThatStartsMinimisedHasItsIcons) {
    AddPictures();
    const wxWeakRef<gui::Form1Window> window(new gui::Form1Window(application, ""));
    window->Iconize();
    window->Show();
    EXPECT_TRUE(test::RunEventsUntil([&] { return test::HasIcon(*window); }));
    EXPECT_TRUE(window->IsIconized());
    window->Destroy();
    EXPECT_TRUE(test::RunEventsUntil([&] { return window == nullptr; }));
}

TEST_F(IdleTest, NothingIsDoneForAWindowThatIsClosedBeforeItIsPainted) {
    bool isLookedUp = false;
    desktop.onSmallIcon = [&] { isLookedUp = true; };
    const wxWeakRef<gui::Form1Window> window(new gui::Form1Window(application, ""));
    window->Show();
    window->Warn("Nothing can be saved.");
    window->wxFrame::Close();
    EXPECT_TRUE(test::RunEventsUntil([&] { return window == nullptr; }));
    EXPECT_FALSE(isLookedUp);
}

TEST_F(IdleTest, AWarningThatWasStillToComeIsNotShownOverAClosedWindow) {
    Open();
    Window().Warn("Nothing can be saved.");
    CloseWindow();
}

}  // namespace
}  // namespace marlo
