#include <gtest/gtest.h>

#include "ui/Contrast.h"

namespace marlo {
namespace {

constexpr Rgb kBlack{0, 0, 0};
constexpr Rgb kWhite{255, 255, 255};
constexpr Rgb kDark{0x2D, 0x2D, 0x2D};

TEST(ContrastTest, BlackOnWhiteIsTheMostAndAColourOnItselfTheLeast) {
    EXPECT_DOUBLE_EQ(ContrastOf(kBlack, kWhite), 21);
    EXPECT_DOUBLE_EQ(ContrastOf(kWhite, kBlack), 21);
    EXPECT_DOUBLE_EQ(ContrastOf(kDark, kDark), 1);
}

TEST(ContrastTest, KnownPairsHaveTheirKnownContrast) {
    EXPECT_NEAR(ContrastOf({0x76, 0x76, 0x76}, kWhite), 4.54, 0.01);
    EXPECT_NEAR(ContrastOf({0x35, 0x84, 0xE4}, kWhite), 3.77, 0.01);
}

TEST(ContrastTest, AColourThatCanBeReadStays) {
    EXPECT_EQ(MadeReadable({0x10, 0x20, 0x80}, kWhite, kTextContrast), (Rgb{0x10, 0x20, 0x80}));
}

TEST(ContrastTest, AColourThatCannotBeReadIsMadeDarkerOnLightAndLighterOnDark) {
    const Rgb pale{0xCD, 0xC7, 0xC2};
    const Rgb darker = MadeReadable(pale, kWhite, kTextContrast);
    EXPECT_GE(ContrastOf(darker, kWhite), kTextContrast);
    EXPECT_LT(ContrastOf(darker, kWhite), kTextContrast + 0.5) << "no further than needed";
    const Rgb deep{0x15, 0x53, 0x9E};
    const Rgb lighter = MadeReadable(deep, kDark, kTextContrast);
    EXPECT_GE(ContrastOf(lighter, kDark), kTextContrast);
    EXPECT_GT(lighter.blue, lighter.red) << "the hue stays";
}

TEST(ContrastTest, WhatCannotBeReachedEndsAtBlackOrWhite) {
    EXPECT_EQ(MadeReadable({128, 128, 128}, {128, 128, 128}, 21), kBlack);
    EXPECT_EQ(MadeReadable({50, 50, 50}, {50, 50, 50}, 21), kWhite);
}

}  // namespace
}  // namespace marlo
