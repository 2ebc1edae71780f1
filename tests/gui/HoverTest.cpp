#include <set>

#include "tests/gui/GuiTest.h"

namespace marlo {
namespace {

class HoverTest : public test::GuiTest {
  protected:
    HoverTest() {
        WriteResultFiles();
        Open();
    }

    using Indexes = std::set<std::size_t>;

    /// The indexes of the items that are marked.
    Indexes Hovered() {
        Indexes hovered;
        for (std::size_t i = 0; i < kCommandItemCount; ++i)
            if (Item(i).IsHovered())
                hovered.insert(i);
        return hovered;
    }

    /// Over a pane's picture or the window's background, beside their controls.
    void MoveToMenuPane() { MoveTo(Find("imgMenu"), {5, 5}); }
    void MoveToRightPane() { MoveTo(Find("imgRightPane"), {600, 5}); }
    void MoveToBackground() { MoveTo(Window(), {5, Window().GetClientSize().y / 2}); }
};

TEST_F(HoverTest, AnItemUnderTheMouseIsMarked) {
    EXPECT_EQ(Hovered(), Indexes{});
    for (const std::size_t i : {0, 5, 10, 11}) {
        MoveTo(Item(i));
        EXPECT_EQ(Hovered(), Indexes{i});
        MoveToBackground();
    }
}

TEST_F(HoverTest, TheMarkIsToBeSeen) {
    MoveToBackground();
    const wxImage plain = test::PictureOf(Item(kUsedReportItem));
    MoveTo(Item(kUsedReportItem));
    EXPECT_FALSE(test::AreEqual(test::PictureOf(Item(kUsedReportItem)), plain));
    MoveToMenuPane();
    EXPECT_TRUE(test::AreEqual(test::PictureOf(Item(kUsedReportItem)), plain));
}

TEST_F(HoverTest, AMarkStaysWhileTheMouseGoesToAnotherItem) {
    MoveTo(Item(kUsedReportItem));
    MoveTo(Item(kInstalledReportItem));
    EXPECT_EQ(Hovered(), (Indexes{3, 4}));
}

TEST_F(HoverTest, TheMenuPaneClearsTheMarksOfItsOwnItems) {
    MoveTo(Item(kUsedReportItem));
    MoveTo(Item(kSearchModeItem));
    MoveToMenuPane();
    EXPECT_EQ(Hovered(), Indexes{kSearchModeItem});
}

TEST_F(HoverTest, TheRightPaneClearsTheMarkOfItsItem) {
    MoveTo(Item(kUsedReportItem));
    MoveTo(Item(kSearchModeItem));
    MoveToRightPane();
    EXPECT_EQ(Hovered(), Indexes{3});
}

TEST_F(HoverTest, TheBackgroundClearsAllMarks) {
    MoveTo(Item(kUsedReportItem));
    MoveTo(Item(kSearchModeItem));
    MoveToBackground();
    EXPECT_EQ(Hovered(), Indexes{});
}

TEST_F(HoverTest, ALockedItemIsNotMarked) {
    MoveTo(Item(kCancelItem));
    EXPECT_EQ(Hovered(), Indexes{});
}

}  // namespace
}  // namespace marlo
