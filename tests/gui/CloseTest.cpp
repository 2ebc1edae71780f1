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

TEST_F(CloseTest, EscapeDoesNotCloseTheWindow) {
    Open();
    Press(WXK_ESCAPE);
    EXPECT_TRUE(IsWindowOpen());
    EXPECT_TRUE(Window().IsShown());
}

}  // namespace
}  // namespace marlo
