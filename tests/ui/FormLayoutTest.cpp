#include <gtest/gtest.h>

#include "ui/FormLayout.h"

namespace marlo {

// Prints a place in a failed comparison.
void PrintTo(const Place& place, std::ostream* out) {
    *out << place.left << "," << place.top << " " << place.width << "x" << place.height;
}

namespace {

NaturalSizes SmallSizes() {
    NaturalSizes sizes;
    sizes.cboSearchType = {1800, 345};
    sizes.Label3 = {900, 195};
    sizes.Label5 = {1000, 240};
    sizes.chkIgnoreCase = {240, 240};
    sizes.txtSearchText = {1500, 345};
    sizes.statusBox = {300, 330};
    return sizes;
}

FormLayout Layout(const TwipSize& client, bool isDonateVisible = true) {
    return LaidOut(DesignLayout(SmallSizes()), client, isDonateVisible);
}

TEST(FormLayoutTest, TheCommandItemsStandWhereTheyWereDrawn) {
    const FormLayout layout = Layout(kDefaultClientSize);
    const std::array<std::int32_t, 11> tops = {1080, 1440, 2160, 2520, 2880, 3240,
                                               3720, 4080, 4800, 5160, 5520};
    for (std::size_t i = 0; i < tops.size(); ++i)
        EXPECT_EQ(layout.cmdbuttons.at(i), (Place{720, tops.at(i), 2040, 195})) << i;
    EXPECT_EQ(layout.cmdbuttons.at(12), (Place{720, 1800, 2040, 195}));
    EXPECT_EQ(layout.cmdbuttons.at(11), (Place{3028, 360, 2040, 195}));
    EXPECT_EQ(layout.btnDonate, (Place{360, 6000, 930, 465}));
}

TEST(FormLayoutTest, TheListFillsTheWindowButForItsMargins) {
    const FormLayout layout = Layout({12000, 9000});
    EXPECT_EQ(layout.lstSongs.Right(), 12000 - 345);
    EXPECT_EQ(layout.lstSongs.Bottom(), 9000 - 525);
}

TEST(FormLayoutTest, TheFindButtonEnds25BeforeTheListAndTheTextBoxFillsTheRest) {
    const FormLayout layout = Layout(kDefaultClientSize);
    EXPECT_EQ(layout.cmdFind.Right(), layout.lstSongs.Right() - 25);
    EXPECT_EQ(layout.txtSearchText.left, layout.lstSongs.left);
    EXPECT_EQ(layout.txtSearchText.width, layout.lstSongs.width - layout.cmdFind.width - 75);
}

TEST(FormLayoutTest, TheStatusBoxesFillTheBottomEdge) {
    const FormLayout layout = Layout({12000, 9000});
    EXPECT_EQ(layout.Text1.left, 0);
    EXPECT_EQ(layout.Text1.Bottom(), 9000);
    EXPECT_EQ(layout.Text2.left, layout.Text1.Right());
    EXPECT_EQ(layout.Text2.Bottom(), 9000);
    EXPECT_EQ(layout.Text2.Right(), 12000);
}

TEST(FormLayoutTest, TheRightPaneFramesTheList) {
    const FormLayout layout = Layout(kDefaultClientSize);
    EXPECT_EQ(layout.boxRightPane.left, layout.lstSongs.left - 50);
    EXPECT_EQ(layout.boxRightPane.Right(), layout.lstSongs.Right() + 50);
    EXPECT_EQ(layout.boxRightPane.Bottom(), layout.lstSongs.Bottom() + 100);
    EXPECT_LT(layout.boxMenu.Right(), layout.boxRightPane.left);
}

TEST(FormLayoutTest, TheMenuPaneEnds150BelowTheDonateButtonOrBelowAbout) {
    EXPECT_EQ(Layout(kDefaultClientSize, true).boxMenu.Bottom(), 6000 + 465 + 150);
    EXPECT_EQ(Layout(kDefaultClientSize, false).boxMenu.Bottom(), 5520 + 195 + 150);
    EXPECT_EQ(Layout({9000, 7000}, true).boxMenu.Bottom(), 6000 + 465 + 150) << "whatever the size";
}

TEST(FormLayoutTest, TheCableInTheMenuPaneEndsAboveTheDonateButtonOrBesideAbout) {
    EXPECT_EQ(Layout(kDefaultClientSize, true).cableBottom, 6000 - 100);
    EXPECT_EQ(Layout(kDefaultClientSize, false).cableBottom, 5520 + 195 - 100);
}

TEST(FormLayoutTest, ThePicturesFillTheirPanesButFor50) {
    const FormLayout layout = Layout(kDefaultClientSize);
    const auto inside = [](const Place& pane) {
        return Place{pane.left + 50, pane.top + 50, pane.width - 100, pane.height - 100};
    };
    EXPECT_EQ(layout.imgMenu, inside(layout.boxMenu));
    EXPECT_EQ(layout.imgRightPane, inside(layout.boxRightPane));
}

TEST(FormLayoutTest, TheHeadingStandsAQuarterIntoTheMenuPaneWithTheMark20IntoIt) {
    const FormLayout layout = Layout(kDefaultClientSize);
    EXPECT_EQ(layout.Label5.left, layout.boxMenu.left + layout.boxMenu.width / 4);
    EXPECT_EQ(layout.Image1.left, layout.Label5.left + 20);
}

TEST(FormLayoutTest, TheIconsStandBesideTheItemsThatOpenResultFiles) {
    const FormLayout layout = Layout(kDefaultClientSize);
    for (std::size_t i = 0; i < 2; ++i) {
        const Place& icon = layout.csvIcons.at(i);
        const Place& item = layout.cmdbuttons.at(6 + i);
        EXPECT_LE(icon.Right(), item.left);
        EXPECT_EQ(icon.top + icon.height / 2, item.top + item.height / 2);
    }
}

TEST(FormLayoutTest, AWindowThatIsTooNarrowForTheListKeepsItsOldWidthAndTheOtherStepsRun) {
    const FormLayout before = Layout({12000, 9000});
    const FormLayout after = LaidOut(before, {345 + before.lstSongs.left - 1, 8000}, true);
    EXPECT_EQ(after.lstSongs.width, before.lstSongs.width);
    EXPECT_EQ(after.lstSongs.Bottom(), 8000 - 525);
    EXPECT_EQ(after.cmdFind.left, before.cmdFind.left);
    EXPECT_EQ(after.boxRightPane.width, before.boxRightPane.width);
    EXPECT_EQ(after.Text1.Bottom(), 8000);
}

TEST(FormLayoutTest, AWindowAsNarrowAsTheListAndItsMarginHasAListWithoutWidth) {
    const FormLayout before = Layout({12000, 9000});
    const FormLayout after = LaidOut(before, {345 + before.lstSongs.left, 8000}, true);
    EXPECT_EQ(after.lstSongs.width, 0);
    EXPECT_EQ(after.txtSearchText.width, before.txtSearchText.width) << "this one is refused";
}

TEST(FormLayoutTest, AWindowThatIsTooLowForTheListKeepsItsOldHeight) {
    const FormLayout before = Layout({12000, 9000});
    const FormLayout after = LaidOut(before, {11000, 100}, true);
    EXPECT_EQ(after.lstSongs.height, before.lstSongs.height);
    EXPECT_EQ(after.lstSongs.Right(), 11000 - 345);
    EXPECT_EQ(after.Text1.top, 100 - after.Text1.height) << "partly above the edge";
}

TEST(FormLayoutTest, TheLayoutHasNoMemoryOfItsOwn) {
    const FormLayout wide = Layout({16000, 10000});
    const FormLayout again = LaidOut(LaidOut(wide, {9000, 7000}, false), {16000, 10000}, true);
    EXPECT_EQ(again.lstSongs, wide.lstSongs);
    EXPECT_EQ(again.txtSearchText, wide.txtSearchText);
    EXPECT_EQ(again.boxMenu, wide.boxMenu);
    EXPECT_EQ(again.imgRightPane, wide.imgRightPane);
}

TEST(FormLayoutTest, CaptionsThatAreTooWideForTheMenuMoveWhatIsRightOfIt) {
    NaturalSizes sizes = SmallSizes();
    sizes.cmdbuttons.at(5) = {2500, 300};
    const FormLayout grown = LaidOut(DesignLayout(sizes), kDefaultClientSize, true);
    const FormLayout usual = Layout(kDefaultClientSize);
    EXPECT_EQ(grown.cmdbuttons.at(5), (Place{720, 3240, 2500, 300}));
    EXPECT_LT(grown.cmdbuttons.at(5).Right(), grown.imgMenu.Right()) << "no room for the focus";
    const std::int32_t growth = grown.boxMenu.width - usual.boxMenu.width;
    EXPECT_GT(growth, 0);
    EXPECT_EQ(grown.lstSongs.left, usual.lstSongs.left + growth);
    EXPECT_EQ(grown.cmdbuttons.at(11).left, 3028 + growth);
    EXPECT_EQ(grown.lstSongs.Right(), usual.lstSongs.Right());
}

TEST(FormLayoutTest, NothingInTheSearchBarOverlaps) {
    const FormLayout layout = Layout(kDefaultClientSize);
    EXPECT_LT(layout.cmdbuttons.at(11).Right(), layout.cboSearchType.left);
    EXPECT_LT(layout.cboSearchType.Right(), layout.Label3.left);
    EXPECT_LT(layout.Label3.Right(), layout.chkIgnoreCase.left);
    EXPECT_LT(layout.cboSearchType.Bottom(), layout.txtSearchText.top);
    EXPECT_LT(layout.txtSearchText.Bottom(), layout.lstSongs.top);
    EXPECT_LT(layout.cmdFind.Bottom(), layout.lstSongs.top);
    EXPECT_LT(layout.txtSearchText.Right(), layout.cmdFind.left);
}

}  // namespace
}  // namespace marlo
