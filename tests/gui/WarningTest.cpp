#include <wx/msgdlg.h>

#include "tests/gui/GuiTest.h"

namespace marlo {
namespace {

class WarningTest : public test::GuiTest {
  protected:
    /// Opens the window with a warning. @param handler what is done with its message box.
    void OpenWithWarning(const test::DialogHandlers::Handler& handler) {
        bool isHandled = false;
        dialogs.Handle([&](test::Dialog& box) {
            handler(box);
            isHandled = true;
        });
        Open();
        Window().Warn("Nothing can be saved.\n\nMove the folder.");
        EXPECT_TRUE(test::RunEventsUntil([&] { return isHandled; }));
    }
};

TEST_F(WarningTest, IsAMessageBoxOverTheWindowWhichCanBeUsedAfterwards) {
    OpenWithWarning([&](test::Dialog& box) {
        ExpectMessageBox(box, "Nothing can be saved.\n\nMove the folder.",
                         wxOK | wxICON_EXCLAMATION);
        EXPECT_TRUE(Window().IsShown());
        Press(WXK_RETURN);
    });
    dialogs.Handle([&](test::Dialog& /*about*/) { Press(WXK_ESCAPE); });
    Click(Item(kAboutItem));
    CloseWindow();
}

TEST_F(WarningTest, IsAnsweredBeforeTheWindowCloses) {
    OpenWithWarning([&](test::Dialog& /*box*/) {
        Window().wxFrame::Close();
        test::RunDueEvents();
        EXPECT_TRUE(IsWindowOpen());
        Press(WXK_RETURN);
    });
    EXPECT_TRUE(test::RunEventsUntil([&] { return !IsWindowOpen(); }));
}

}  // namespace
}  // namespace marlo
