#include <set>

#include "app/gui/Theme.h"
#include "tests/gui/GuiTest.h"

namespace marlo {
namespace {

/// The pictures of the menu pane, which is lower after a minute.
class MenuPaneTest : public test::GuiTest {
  protected:
    MenuPaneTest() {
        AddPictures();
        Open();
    }

    wxWindow& Panel() { return Find("imgMenu"); }

    void LetAMinutePass() {
        const int height = Panel().GetClientSize().y;
        for (int second = 0; second < 60; ++second)
            Logic().Timer1_Timer();
        ASSERT_TRUE(test::RunEventsUntil([&] { return Panel().GetClientSize().y < height; }));
        test::RunEvents();
    }

    /// Whether the pane shows nothing but its ground in an area, as far as that is on it.
    bool IsPlain(const wxRect& area) {
        const wxImage picture =
            test::PictureOf(Panel(), area.Intersect(wxRect(Panel().GetClientSize())));
        const wxColour ground = gui::CurrentTheme().menuPane;
        for (int x = 0; x < picture.GetWidth(); ++x)
            for (int y = 0; y < picture.GetHeight(); ++y)
                if (wxColour(picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y)) !=
                    ground)
                    return false;
        return true;
    }

    /// Whether an item's own ground covers a part of a picture and ends in the middle of it.
    bool CutsIntoAPicture(const wxWindow& item) {
        const wxRect place = item.GetRect();
        const wxRect around = wxRect(place).Inflate(1);
        const bool isFree = IsPlain({around.x, around.y, around.width, 1}) &&
                            IsPlain({around.x, place.GetBottom() + 1, around.width, 1}) &&
                            IsPlain({around.x, around.y, 1, around.height}) &&
                            IsPlain({place.GetRight() + 1, around.y, 1, around.height});
        return !isFree;
    }

    /// The indexes of the items that do.
    std::set<std::size_t> ItemsThatCutIntoAPicture() {
        std::set<std::size_t> found;
        for (std::size_t i = 0; i < kCommandItemCount; ++i)
            if (kCommandItems.at(i).pane == Pane::Menu && CutsIntoAPicture(Item(i)))
                found.insert(i);
        return found;
    }

    /// An area on the left of the items. @param bottom where it ends.
    wxRect LeftOfTheItems(int bottom, int height) {
        return {0, bottom - height, Item(kAboutItem).GetPosition().x - 1, height};
    }
    /// Whether nothing stands there, and the cable above that.
    bool IsBelowTheCable(const wxRect& area) {
        return IsPlain(area) && !IsPlain(LeftOfTheItems(area.y, 20));
    }
};

TEST_F(MenuPaneTest, NoItemCutsIntoAPictureWithTheDonateButtonOrWithout) {
    const auto areWhole = [&] { return ItemsThatCutIntoAPicture().empty(); };
    EXPECT_TRUE(test::RunEventsUntil(areWhole))
        << testing::PrintToString(ItemsThatCutIntoAPicture());
    LetAMinutePass();
    EXPECT_TRUE(test::RunEventsUntil(areWhole))
        << testing::PrintToString(ItemsThatCutIntoAPicture());
}

TEST_F(MenuPaneTest, TheCableEndsAboveTheDonateButtonAndLaterAboveTheFoot) {
    EXPECT_TRUE(test::RunEventsUntil(
        [&] { return IsBelowTheCable(LeftOfTheItems(Find("btnDonate").GetPosition().y, 4)); }));
    LetAMinutePass();
    constexpr int footHeight = 6;
    const int foot = Panel().GetClientSize().y - footHeight;
    EXPECT_TRUE(test::RunEventsUntil([&] { return IsBelowTheCable(LeftOfTheItems(foot - 1, 4)); }));
    EXPECT_FALSE(IsPlain(LeftOfTheItems(foot + footHeight, footHeight))) << "the foot is there";
}

}  // namespace
}  // namespace marlo
