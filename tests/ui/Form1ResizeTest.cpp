#include <string>

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "tests/ui/Form1Test.h"

namespace marlo {
namespace {

using test::Form1Test;

class Form1ResizeTest : public Form1Test {
  protected:
    Form1ResizeTest() {
        WriteSetting(application, setting::kCsvProgram, "/bin/sheets");
        form.Form_Load();
        view.events.clear();
    }

    std::int32_t MenuBottom() const { return view.layout.boxMenu.Bottom(); }

    static constexpr std::int32_t kBelowDonate = 6000 + 465 + 150;
    static constexpr std::int32_t kBelowAbout = 5520 + 195 + 150;
};

TEST_F(Form1ResizeTest, MinimisingLeavesEveryControlWhereItWas) {
    view.isMinimised = true;
    view.client = {0, 0};
    form.Form_Resize();
    EXPECT_TRUE(view.events.empty());
}

TEST_F(Form1ResizeTest, AnEmptyListGetsItsColumnsFittedButNoBands) {
    form.Form_Resize();
    EXPECT_EQ(view.events, (test::Texts{"Place", "AutoSizeListViewColumns"}));
}

TEST_F(Form1ResizeTest, AListWithRowsIsShadedAgain) {
    form.lstSongs().AddColumn("Used Plugins");
    form.lstSongs().AddRow("a", "a");
    form.Form_Resize();
    EXPECT_EQ(view.events, (test::Texts{"Place", "AutoSizeListViewColumns", "SetLedger"}));
}

TEST_F(Form1ResizeTest, AStepThatFailsIsPassedOver) {
    form.lstSongs().AddColumn("Used Plugins");
    form.lstSongs().AddRow("a", "a");
    for (const std::string failing : {"Place", "AutoSizeListViewColumns"}) {
        view.events.clear();
        view.failing = failing;
        form.Form_Resize();
        EXPECT_EQ(Count("SetLedger"), 1U) << failing;
    }
    EXPECT_EQ(Log(), "");
    EXPECT_TRUE(view.messages.empty());
}

TEST_F(Form1ResizeTest, BandsThatCannotBePaintedAreLoggedAndTakenAway) {
    view.failing = "SetLedger";
    form.SetListViewLedger(0, 0, 2);
    EXPECT_EQ(view.events, (test::Texts{"SetLedger", "RemoveLedger"}));
    EXPECT_EQ(Log(), LogLine("SetListViewLedger", 5, "Invalid procedure call"));
}

TEST_F(Form1ResizeTest, ShadingMakesTheListVisible) {
    form.lstSongs().SetVisible(false);
    form.SetListViewLedger(0, 0, 2);
    EXPECT_TRUE(form.lstSongs().IsVisible());
}

TEST_F(Form1ResizeTest, OnAScreenOfAnotherScaleTheWindowIsLaidOutForTheSizesThere) {
    view.sizes.cboSearchType = {1200, 400};
    form.Form_Resize();
    EXPECT_NE(view.layout.cboSearchType.width, 1200)
        << "sizes are asked for when the scale changes";
    form.Form_ScaleChange();
    EXPECT_EQ(view.layout.cboSearchType.width, 1200);
    EXPECT_EQ(view.layout.lstSongs.Right(), view.client.width - 345);
}

TEST_F(Form1ResizeTest, TheMenuEndsBelowTheDonateButtonUntilItsMinuteHasPassed) {
    for (int second = 1; second < 60; ++second)
        form.Timer1_Timer();
    EXPECT_TRUE(view.events.empty()) << "nothing is laid out before";
    form.Form_Resize();
    EXPECT_EQ(MenuBottom(), kBelowDonate);
    EXPECT_TRUE(view.state.isDonateVisible);

    form.Timer1_Timer();
    EXPECT_EQ(MenuBottom(), kBelowAbout);
    EXPECT_FALSE(view.state.isDonateVisible);
    EXPECT_FALSE(view.state.isDonateEnabled);
    EXPECT_EQ(view.timerInterval, 0);
    form.Form_Resize();
    EXPECT_EQ(MenuBottom(), kBelowAbout);
}

TEST_F(Form1ResizeTest, ADonateButtonThatIsGoneStaysGone) {
    for (int second = 1; second <= 60; ++second)
        form.Timer1_Timer();
    form.DisableButtons();
    form.EnableButtons();
    EXPECT_FALSE(view.state.isDonateVisible);
}

}  // namespace
}  // namespace marlo
