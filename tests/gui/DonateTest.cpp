#include "tests/gui/GuiTest.h"

namespace marlo {
namespace {

constexpr int kMinute = 60;

class DonateTest : public test::GuiTest {
  protected:
    DonateTest() { Open(); }

    int MenuBottom() { return PlaceOf(Find("boxMenu")).GetBottom(); }
    /// As if seconds went by.
    void Tick(int count) {
        for (int i = 0; i < count; ++i)
            Logic().Timer1_Timer();
    }
};

TEST_F(DonateTest, TheButtonGoesAfter59TicksByHandAndOneOfTheTimer) {
    Tick(kMinute - 1);
    ASSERT_TRUE(Find("btnDonate").IsShown());
    EXPECT_TRUE(test::RunEventsUntil([&] { return !Find("btnDonate").IsShown(); }));
    EXPECT_FALSE(Find("btnDonate").IsEnabled());
}

TEST_F(DonateTest, TheMenuPaneThenEndsBelowAbout) {
    constexpr int margin = 10;
    EXPECT_NEAR(MenuBottom(), PlaceOf(Find("btnDonate")).GetBottom() + margin, 1);
    Tick(kMinute);
    EXPECT_NEAR(MenuBottom(), PlaceOf(Item(kAboutItem)).GetBottom() + margin, 1);
    const wxSize smaller = Window().GetClientSize() - wxSize(50, 50);
    Window().SetClientSize(smaller);
    ASSERT_TRUE(
        test::RunEventsUntil([&] { return PlaceOf(Find("Text1")).GetBottom() == smaller.y - 1; }));
    EXPECT_NEAR(MenuBottom(), PlaceOf(Item(kAboutItem)).GetBottom() + margin, 1);
}

TEST_F(DonateTest, TheButtonDoesNotComeBackWithTheCommands) {
    Tick(kMinute);
    Logic().DisableButtons();
    Logic().EnableButtons();
    EXPECT_FALSE(Find("btnDonate").IsShown());
}

TEST_F(DonateTest, MoreTicksChangeNothing) {
    Tick(2 * kMinute + 1);
    EXPECT_FALSE(Find("btnDonate").IsShown());
    EXPECT_EQ(Log(), "");
}

}  // namespace
}  // namespace marlo
