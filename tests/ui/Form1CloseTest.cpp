#include <gtest/gtest.h>

#include "core/Settings.h"
#include "tests/ui/Form1Test.h"

namespace marlo {
namespace {

using test::Form1Test;

using Form1CloseTest = Form1Test;

TEST_F(Form1CloseTest, TheChoicesAreSaved) {
    view.searchType = 3;
    view.ignoreCase = true;
    EXPECT_TRUE(form.Form_QueryUnload());
    form.Form_Unload();
    EXPECT_EQ(getSetting(application, setting::kSearchType), "3");
    EXPECT_EQ(getSetting(application, setting::kIgnoreCase), "1");
    view.ignoreCase = false;
    form.Form_Unload();
    EXPECT_EQ(getSetting(application, setting::kIgnoreCase), "0");
}

TEST_F(Form1CloseTest, AWindowClosedDuringASearchCancelsItSilentlyAndThenCloses) {
    AddProject("a.cpr");
    AddProject("b.cpr");
    view.folders.answer = folder.Path("songs");
    view.answer = MessageAnswer::Yes;
    view.onEvents = [&] {
        if (view.text1.starts_with("(2)")) {
            EXPECT_FALSE(form.Form_QueryUnload());
        }
    };
    form.cmdButtons_Click(kSearchItem);
    EXPECT_EQ(MessageTexts(), test::Texts{"Include Subfolders in the search?"});
    EXPECT_EQ(view.events.back(), "Close");
    EXPECT_TRUE(form.Form_QueryUnload());
    EXPECT_FALSE(folder.Exists("resultfiles/tln.csv"));
}

TEST_F(Form1CloseTest, AWindowClosedDuringAnInventoryCancelsItSilentlyAndThenCloses) {
    folder.Write("vst/Reverb.dll", "");
    WriteSetting(application, setting::kFirstVstFolder, folder.Path("vst"));
    view.onEvents = [&] { EXPECT_FALSE(form.Form_QueryUnload()); };
    form.cmdButtons_Click(kInventoryItem);
    EXPECT_TRUE(view.messages.empty());
    EXPECT_EQ(view.events.back(), "Close");
}

TEST_F(Form1CloseTest, AWindowCanBeClosedAfterARunThatFailedAltogether) {
    view.failing = "ShowMessage";
    view.folders.answer = folder.Path("songs");
    // Not even the failure can be told.
    EXPECT_NO_THROW(form.cmdButtons_Click(kSearchItem));
    EXPECT_EQ(Enabled(), withoutResults);
    EXPECT_TRUE(form.Form_QueryUnload());
}

TEST_F(Form1CloseTest, ARunThatWasNotClosedLeavesTheWindowOpen) {
    form.cmdButtons_Click(kInventoryItem);
    EXPECT_EQ(Count("Close"), 0U);
}

}  // namespace
}  // namespace marlo
