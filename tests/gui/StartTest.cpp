#include "tests/gui/GuiTest.h"

namespace marlo {
namespace {

using StartTest = test::GuiTest;

TEST_F(StartTest, OnAFirstStartOnlyTheCommandsWithoutResultFilesCanBeUsed) {
    Open();
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        EXPECT_EQ(Item(i).IsEnabled(), !kCommandItems[i].needsResultFiles && i != kCancelItem) << i;
    EXPECT_FALSE(Find("cmdFind").IsEnabled());
    EXPECT_TRUE(Find("btnDonate").IsEnabled());
}

TEST_F(StartTest, WithAllResultFilesTheReportsCanBeUsed) {
    WriteResultFiles();
    Open();
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        EXPECT_EQ(Item(i).IsEnabled(), i != kCancelItem) << i;
    EXPECT_TRUE(Find("cmdFind").IsEnabled());
}

TEST_F(StartTest, AClickOnAReportShowsIt) {
    WriteResultFiles();
    Open();
    Click(Item(3));
    ASSERT_EQ(List().GetItemCount(), 2);
    EXPECT_EQ(List().GetItemText(0, 0), "Echo");
    EXPECT_EQ(List().GetItemText(1, 0), "Reverb");
}

TEST_F(StartTest, OptionsOpensAndEscapeClosesIt) {
    Open();
    dialogs.Handle([&](wxDialog& dialog) {
        EXPECT_EQ(dialog.GetName(), "frmOptions");
        Press(WXK_ESCAPE);
    });
    Click(Item(8));
    EXPECT_EQ(dialogs.Count(), 1U);
}

TEST_F(StartTest, AWholeSearchAsksForTheFolderAndItsSubfolders) {
    AddProject("a.cpr");
    folder.Write("resultfiles/installedplugins.csv", "");
    Open();
    dialogs.Handle([&](wxDialog& picker) { ChooseInPicker(picker, folder.Path("songs")); });
    dialogs.Handle([&](wxDialog& /*question*/) { Press(WXK_RETURN); });
    Click(Item(0));
    EXPECT_EQ(dialogs.Count(), 2U);
    EXPECT_TRUE(Item(3).IsEnabled());
    EXPECT_NE(folder.Read("resultfiles/tln.csv").find("Reverb"), std::string::npos);
}

}  // namespace
}  // namespace marlo
