#include <gtest/gtest.h>

#include "dialogs/frmAbout.h"

namespace marlo {
namespace {

TEST(AboutTest, ItNamesTheProgramAndWhatItIsFor) {
    const frmAbout about = LoadAbout({});
    EXPECT_EQ(about.caption, "About Marlo");
    EXPECT_EQ(about.lblTitle, "Marlo");
    EXPECT_EQ(about.lblVersion, "Version 1.0.0");
    EXPECT_EQ(about.lblDescription,
              "Everything you wanted to know about your usage of Cubase SX3 VST and DirectX "
              "Plugins");
}

TEST(AboutTest, TheVersionsNumbersAreNotPadded) {
    EXPECT_EQ(LoadAbout({.revision = 7}).lblVersion, "Version 1.0.7");
    EXPECT_EQ(LoadAbout({.major = 12, .minor = 34, .revision = 567}).lblVersion,
              "Version 12.34.567");
}

void ExpectPlace(const WindowPlace& place, const WindowPlace& expected) {
    EXPECT_EQ(place.left, expected.left);
    EXPECT_EQ(place.top, expected.top);
    EXPECT_EQ(place.width, expected.width);
    EXPECT_EQ(place.height, expected.height);
}

TEST(AboutTest, ItStandsInTheMiddleOfTheMainWindow) {
    ExpectPlace(CentredOver({.left = 100, .top = 200, .width = 800, .height = 600},
                            {.left = 5, .top = 6, .width = 300, .height = 100}),
                {.left = 350, .top = 450, .width = 300, .height = 100});
}

TEST(AboutTest, AMainWindowPartlyOffTheScreenTakesItAlong) {
    ExpectPlace(CentredOver({.left = -700, .top = -500, .width = 800, .height = 600},
                            {.left = 0, .top = 0, .width = 300, .height = 200}),
                {.left = -450, .top = -300, .width = 300, .height = 200});
}

TEST(AboutTest, HalvesAreNotRounded) {
    ExpectPlace(CentredOver({.left = 0, .top = 0, .width = 101, .height = 100},
                            {.left = 0, .top = 0, .width = 50, .height = 33}),
                {.left = 25.5, .top = 33.5, .width = 50, .height = 33});
    ExpectPlace(CentredOver({.left = 0, .top = 0, .width = 51, .height = 51},
                            {.left = 0, .top = 0, .width = 25, .height = 25}),
                {.left = 13, .top = 13, .width = 25, .height = 25});
}

TEST(AboutTest, ADialogLargerThanTheMainWindowStandsOutOnBothSides) {
    ExpectPlace(CentredOver({.left = 10, .top = 10, .width = 100, .height = 100},
                            {.left = 0, .top = 0, .width = 200, .height = 300}),
                {.left = -40, .top = -90, .width = 200, .height = 300});
}

}  // namespace
}  // namespace marlo
