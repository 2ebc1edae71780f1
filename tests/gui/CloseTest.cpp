#include <filesystem>
#include <wx/choice.h>

#include "core/Settings.h"
#include "tests/gui/ListGuiTest.h"

namespace marlo {
namespace {

using CloseTest = test::ListGuiTest;

TEST_F(CloseTest, SavesTheChoicesOfTheSearch) {
    Open();
    Find<wxChoice>("cboSearchType").SetSelection(3);
    CloseWindow();
    EXPECT_EQ(getSetting(application, setting::kSearchType), "3");
    EXPECT_EQ(getSetting(application, setting::kIgnoreCase), "0");
    EXPECT_EQ(Log(), "");
}

TEST_F(CloseTest, SettingsThatCannotBeWrittenDoNotKeepTheWindowOpen) {
    Open();
    std::filesystem::remove(folder.Path("settings.ini"));
    folder.MakeFolder("settings.ini");
    CloseWindow();
}

TEST_F(CloseTest, GoesWithASelectedRowInTheList) {
    WriteResultFiles();
    Open();
    Click(Item(kUsedReportItem));
    ClickRow(1);
    CloseWindow();
    EXPECT_EQ(Log(), "");
}

TEST_F(CloseTest, AClickThatWasStillToComeRunsNoCommandAnyMore) {
    Open();
    auto& about = Item(kAboutItem);
    Window().wxFrame::Close();
    for (const wxEventType type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_UP}) {
        wxMouseEvent event(type);
        about.HandleWindowEvent(event);
    }
    EXPECT_TRUE(test::RunEventsUntil([&] { return !IsWindowOpen(); }));
}

TEST_F(CloseTest, GoesWhileTheButtonIsDownOnACommand) {
    Open();
    MoveTo(Item(kAboutItem));
    wxUIActionSimulator().MouseDown();
    EXPECT_TRUE(test::RunEventsUntil([&] { return Item(kAboutItem).HasCapture(); }));
    CloseWindow();
    wxUIActionSimulator().MouseUp();
}

TEST_F(CloseTest, AnOpenMenuIsAnsweredFirst) {
    WriteResultFiles();
    Open();
    Click(Item(kUsedReportItem));
    InMenu([&] { ClickRow(1, wxMOUSE_BTN_RIGHT); },
           [&](wxMenu& /*menu*/) {
               Window().wxFrame::Close();
               SendKey(WXK_ESCAPE);
           });
    EXPECT_TRUE(test::RunEventsUntil([&] { return !IsWindowOpen(); }));
    EXPECT_EQ(Log(), "");
}

TEST_F(CloseTest, AListIsSavedFirstWhereTheUserIsAskedForItsFile) {
    WriteResultFiles();
    Open();
    Click(Item(kUsedReportItem));
    dialogs.Handle([&](test::Dialog& chooser) {
        Window().wxFrame::Close();
        ChooseInPicker(chooser, folder.Path("list.csv"));
    });
    ChooseInMenu(3, [&] { ClickRow(0, wxMOUSE_BTN_RIGHT); });
    EXPECT_TRUE(folder.Exists("list.csv"));
    EXPECT_TRUE(test::RunEventsUntil([&] { return !IsWindowOpen(); }));
}

TEST_F(CloseTest, AnOpenDialogIsAnsweredFirst) {
    for (const std::size_t item : {kAboutItem, kOptionsItem}) {
        Open();
        dialogs.Handle([&](test::Dialog& /*dialog*/) {
            Window().wxFrame::Close();
            test::RunDueEvents();
            EXPECT_TRUE(IsWindowOpen());
            Press(WXK_ESCAPE);
        });
        Click(Item(item));
        EXPECT_TRUE(test::RunEventsUntil([&] { return !IsWindowOpen(); }));
    }
}

TEST_F(CloseTest, EscapeDoesNotCloseTheWindow) {
    Open();
    Press(WXK_ESCAPE);
    EXPECT_TRUE(IsWindowOpen());
    EXPECT_TRUE(Window().IsShown());
}

}  // namespace
}  // namespace marlo
