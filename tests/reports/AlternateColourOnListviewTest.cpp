#include <gtest/gtest.h>

#include "reports/AlternateColourOnListview.h"

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

}  // namespace
}  // namespace marlo
