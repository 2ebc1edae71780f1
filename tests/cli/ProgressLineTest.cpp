#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "app/cli/ProgressLine.h"

namespace marlo::cli {
namespace {

/// What a line shows on a terminal of the usual width, 80 cells.
std::string Shown(const std::string& phase, const std::string& item) {
    testing::internal::CaptureStderr();
    ProgressLine line(ProgressStyle::Redrawn);
    line.Show(phase, item);
    return testing::internal::GetCapturedStderr();
}

TEST(ProgressLineTest, APercentageIsABarToo) {
    EXPECT_EQ(Shown("(2) Finding Plugins (0%) ...", "a.cpr"),
              "\r\x1B[K[....................] (2) Finding Plugins (0%) ... a.cpr");
    EXPECT_EQ(Shown("(2) Finding Plugins (28%) ...", "a.cpr"),
              "\r\x1B[K[#####...............] (2) Finding Plugins (28%) ... a.cpr");
    EXPECT_EQ(Shown("(2) Finding Plugins (100%) ...", "a.cpr"),
              "\r\x1B[K[####################] (2) Finding Plugins (100%) ... a.cpr");
}

TEST(ProgressLineTest, APhaseWithoutAPercentageHasNoBar) {
    EXPECT_EQ(Shown("(1) Finding Projects ...", ""), "\r\x1B[K(1) Finding Projects ... ");
}

TEST(ProgressLineTest, APhaseIsDrawnOnceInAWhile) {
    constexpr int shows = 1000;
    testing::internal::CaptureStderr();
    ProgressLine line(ProgressStyle::Redrawn);
    for (int i = 0; i < shows; ++i)
        line.Show("(1%)", std::to_string(i));
    const std::string drawn = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(drawn.starts_with("\r\x1B[K[....................] (1%) 0"));
    EXPECT_LT(std::count(drawn.begin(), drawn.end(), '\r'), shows / 2);
}

TEST(ProgressLineTest, WhatWasDrawnIsTakenOffTheTerminalOnce) {
    testing::internal::CaptureStderr();
    ProgressLine line(ProgressStyle::Redrawn);
    line.Clear();
    line.Show("(1) Finding Projects ...", "");
    line.Clear();
    line.Clear();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "\r\x1B[K(1) Finding Projects ... \r\x1B[K");
}

}  // namespace
}  // namespace marlo::cli
