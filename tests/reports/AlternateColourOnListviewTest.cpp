#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "reports/AlternateColourOnListview.h"
#include "tests/support/ApplicationTest.h"

namespace marlo {
namespace {

constexpr std::int32_t kTwips = 15;  // a pixel's, at the usual resolution
constexpr std::int32_t kIconHeight = 20;

std::int32_t Height(std::int32_t textPixels, std::int32_t sizingKind) {
    return LedgerBandHeight(textPixels * kTwips, kTwips, kIconHeight, sizingKind);
}

TEST(AlternateColourOnListviewTest, RowsOfTextAreAPixelHigherThanTheText) {
    EXPECT_EQ(Height(13, ledger::kTextOnly), 14 * kTwips);
}

TEST(AlternateColourOnListviewTest, RowsWithCheckBoxesAreAtLeast19PixelsHigh) {
    EXPECT_EQ(Height(13, ledger::kCheckBoxes), 19 * kTwips);
    EXPECT_EQ(Height(18, ledger::kCheckBoxes), 19 * kTwips);
    EXPECT_EQ(Height(19, ledger::kCheckBoxes), 20 * kTwips);
}

TEST(AlternateColourOnListviewTest, RowsWithIconsAreAPixelHigherThanTheIconWhateverTheText) {
    EXPECT_EQ(Height(13, ledger::kIcons), 21 * kTwips);
    EXPECT_EQ(Height(30, ledger::kIcons), 21 * kTwips);
}

TEST(AlternateColourOnListviewTest, PartsOfAPixelAreLeftOverOnTop) {
    EXPECT_EQ(LedgerBandHeight(13 * kTwips + 7, kTwips, kIconHeight, ledger::kIcons),
              21 * kTwips + 7);
}

TEST(AlternateColourOnListviewTest, RowsOfAnotherKindAreAsHighAsTheText) {
    EXPECT_EQ(Height(13, 3), 13 * kTwips);
    EXPECT_EQ(Height(13, -1), 13 * kTwips);
}

TEST(AlternateColourOnListviewTest, TheSecondBandIsLightBlue) {
    EXPECT_EQ(kLedgerBar1, 0xFFFFFF);
    EXPECT_EQ(kLedgerBar2, 239 + 243 * 256 + 255 * 65536);
}

/// A list view that writes down what it is asked.
class FakeLedgerView final : public LedgerView {
  public:
    void SetLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                   std::int32_t sizingKind) override {
        events.push_back("SetLedger " + std::to_string(bar1Colour) + " " +
                         std::to_string(bar2Colour) + " " + std::to_string(sizingKind));
        if (failsToSet)
            throw RunTimeError(ErrorNumber::PermissionDenied);
    }
    void RemoveLedger() override {
        events.emplace_back("RemoveLedger");
        if (failsToRemove)
            throw RunTimeError(ErrorNumber::OutOfMemory);
    }

    std::vector<std::string> events;
    bool failsToSet = false;
    bool failsToRemove = false;
};

class ListViewLedgerTest : public test::ApplicationTest {
  protected:
    using Texts = std::vector<std::string>;

    void Shade() { SetListViewLedger(application, list, view, 1, 2, 3); }

    ResultList list;
    FakeLedgerView view;
};

TEST_F(ListViewLedgerTest, ShadingMakesTheListVisible) {
    list.SetVisible(false);
    Shade();
    EXPECT_TRUE(list.IsVisible());
    EXPECT_EQ(view.events, Texts{"SetLedger 1 2 3"});
    EXPECT_EQ(Log(), "");
}

TEST_F(ListViewLedgerTest, AFailureIsLoggedAndLeavesNoShading) {
    view.failsToSet = true;
    Shade();
    EXPECT_EQ(view.events, (Texts{"SetLedger 1 2 3", "RemoveLedger"}));
    EXPECT_EQ(Log(), LogLine("SetListViewLedger", 70, "Permission denied"));
}

TEST_F(ListViewLedgerTest, ShadingThatCannotBeTakenAwayEitherIsLoggedOnce) {
    view.failsToSet = true;
    view.failsToRemove = true;
    Shade();
    EXPECT_EQ(Log(), LogLine("SetListViewLedger", 70, "Permission denied"));
}

}  // namespace
}  // namespace marlo
