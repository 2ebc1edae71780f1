#include <map>

#include "tests/gui/ListGuiTest.h"

namespace marlo {
namespace {

/// Lengths are in pixels; the formulas' twips are 15 to one of them.
class LayoutTest : public test::ListGuiTest {
  protected:
    LayoutTest() { Open(); }

    static constexpr double kTwip = 1.0 / 15;

    void Resize(const wxSize& client) {
        Window().SetClientSize(client);
        ASSERT_TRUE(test::RunEventsUntil([&] {
            return Window().GetClientSize() == client && test::HasItsSize(Window()) &&
                   EdgeOf("Text1", wxBOTTOM) == client.y;
        }));
        test::RunEvents();
    }

    int EdgeOf(const std::string& name, wxDirection side) {
        const wxRect place = PlaceOf(Find(name));
        switch (side) {
            case wxLEFT:
                return place.x;
            case wxTOP:
                return place.y;
            case wxRIGHT:
                return place.x + place.width;
            default:
                return place.y + place.height;
        }
    }
    int Left(const std::string& name) { return EdgeOf(name, wxLEFT); }
    int Top(const std::string& name) { return EdgeOf(name, wxTOP); }
    int Right(const std::string& name) { return EdgeOf(name, wxRIGHT); }
    int Bottom(const std::string& name) { return EdgeOf(name, wxBOTTOM); }

    /// Where all controls stand.
    std::map<std::string, wxRect> Places() {
        std::map<std::string, wxRect> places;
        for (const char* name :
             {"boxMenu", "imgMenu", "Label5", "Image1", "btnDonate", "boxRightPane", "imgRightPane",
              "cboSearchType", "Label3", "chkIgnoreCase", "txtSearchText", "cmdFind", "lstSongs",
              "Text1", "Text2", "cmdbuttons(0)", "cmdbuttons(10)", "cmdbuttons(11)"})
            places[name] = PlaceOf(Find(name));
        return places;
    }
};

TEST_F(LayoutTest, FollowsTheSizeOfTheWindow) {
    for (const wxSize client : {wxSize(700, 500), wxSize(1100, 800), wxSize(820, 640)}) {
        Resize(client);
        EXPECT_NEAR(Right("lstSongs"), client.x - 345 * kTwip, 1);
        EXPECT_NEAR(Bottom("lstSongs"), client.y - 525 * kTwip, 1);
        EXPECT_NEAR(Right("cmdFind"), Right("lstSongs") - 25 * kTwip, 1);
        EXPECT_NEAR(PlaceOf(Find("txtSearchText")).width,
                    PlaceOf(List()).width - PlaceOf(Find("cmdFind")).width - 75 * kTwip, 1);
        EXPECT_EQ(Bottom("Text1"), client.y);
        EXPECT_EQ(Bottom("Text2"), client.y);
        EXPECT_EQ(Left("Text1"), 0);
        EXPECT_EQ(Left("Text2"), Right("Text1"));
        EXPECT_EQ(Right("Text2"), client.x);
        EXPECT_NEAR(Left("boxRightPane"), Left("lstSongs") - 50 * kTwip, 1);
        EXPECT_NEAR(Right("boxRightPane"), Right("lstSongs") + 50 * kTwip, 1);
        EXPECT_NEAR(Bottom("boxRightPane"), Bottom("lstSongs") + 100 * kTwip, 1);
        EXPECT_NEAR(Bottom("boxMenu"), Bottom("btnDonate") + 150 * kTwip, 1);
    }
}

TEST_F(LayoutTest, ThePicturesFillTheirPanes) {
    Resize({900, 700});
    for (const auto& [picture, pane] :
         {std::pair("imgMenu", "boxMenu"), std::pair("imgRightPane", "boxRightPane")}) {
        EXPECT_NEAR(Left(picture), Left(pane) + 50 * kTwip, 1);
        EXPECT_NEAR(Top(picture), Top(pane) + 50 * kTwip, 1);
        EXPECT_NEAR(Right(picture), Right(pane) - 50 * kTwip, 1);
        EXPECT_NEAR(Bottom(picture), Bottom(pane) - 50 * kTwip, 1);
    }
}

TEST_F(LayoutTest, TheHeadingStandsInTheMenuPane) {
    EXPECT_TRUE(PlaceOf(Find("imgMenu")).Contains(PlaceOf(Find("Label5"))));
    EXPECT_NEAR(Left("Image1"), Left("Label5") + 20 * kTwip, 1);
}

TEST_F(LayoutTest, AWindowTooNarrowForTheListKeepsItsWidthAndTheRestGoesOn) {
    Resize({700, 500});
    const int width = PlaceOf(List()).width;
    const int narrow = Left("lstSongs") + static_cast<int>(345 * kTwip) - 20;
    Resize({narrow, 450});
    EXPECT_EQ(PlaceOf(List()).width, width);
    EXPECT_NEAR(Bottom("lstSongs"), 450 - 525 * kTwip, 1);
    EXPECT_EQ(Bottom("Text2"), 450);
    Resize({700, 500});
    EXPECT_NEAR(Right("lstSongs"), 700 - 345 * kTwip, 1);
    EXPECT_EQ(Log(), "");
}

TEST_F(LayoutTest, AWindowTooLowForTheListIsSurvived) {
    Resize({700, 60});
    EXPECT_NEAR(Right("lstSongs"), 700 - 345 * kTwip, 1);
    Resize({700, 500});
    EXPECT_NEAR(Bottom("lstSongs"), 500 - 525 * kTwip, 1);
}

TEST_F(LayoutTest, AMinimisedWindowLeavesItsControlsWhereTheyWere) {
    Resize({850, 650});
    const auto before = Places();
    Window().Iconize();
    ASSERT_TRUE(test::RunEventsUntil([&] { return Window().IsIconized(); }));
    for (int second = 0; second < 60; ++second)
        Logic().Timer1_Timer();
    EXPECT_EQ(Places(), before) << "also when the donation button goes, which lays the window out";
    // A window manager that is not done yet with minimising it takes no notice.
    ASSERT_TRUE(test::RepeatUntil([&] { return !Window().IsIconized(); },
                                  [&] { test::Restore(Window()); }));
    EXPECT_TRUE(test::RunEventsUntil([&] {
        return Bottom("boxMenu") < before.at("boxMenu").GetBottom();
    })) << "the layout is run when the window is back";
    EXPECT_TRUE(test::RunEventsUntil([&] { return PlaceOf(List()) == before.at("lstSongs"); }));
}

}  // namespace
}  // namespace marlo
