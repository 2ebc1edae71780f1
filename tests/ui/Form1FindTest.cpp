#include <string>

#include <gtest/gtest.h>

#include "tests/ui/Form1Test.h"

namespace marlo {
namespace {

using test::Form1Test;

class Form1FindTest : public Form1Test {
  protected:
    Form1FindTest() {
        const std::string song = folder.Write("song.cpr", "");
        WriteResultFiles();
        WriteRecords("fln.csv", {{song, "Reverb", "VST", "On"}, {song, "Big Reverb", "VST", "On"}});
        form.Form_Load();
    }

    test::Texts Found() {
        test::Texts plugins;
        const ResultList& list = form.lstSongs();
        for (std::size_t position = 1; position <= list.RowCount(); ++position)
            plugins.emplace_back(list.SubItem(list.RowAt(position), 2));
        return plugins;
    }
};

TEST_F(Form1FindTest, TheSearchTakesItsTextKindAndCaseFromTheControls) {
    view.searchText = "reverb";
    view.searchType = 3;
    form.cmdFind_Click();
    EXPECT_EQ(Found(), test::Texts{""}) << "case counts";
    view.ignoreCase = true;
    form.cmdFind_Click();
    EXPECT_EQ(Found(), (test::Texts{"Reverb", "Big Reverb"}));
    view.searchType = 1;
    form.cmdFind_Click();
    EXPECT_EQ(Found(), test::Texts{"Reverb"});
}

TEST_F(Form1FindTest, TheSearchGoesByTheModeThatItsItemShows) {
    form.cmdButtons_Click(kSearchModeItem);
    view.searchText = "song.cpr";
    view.searchType = 2;
    form.cmdFind_Click();
    EXPECT_EQ(Found(), (test::Texts{"Reverb", "Big Reverb"}));
    EXPECT_EQ(form.ListTitle(), "List Plugins in Project: song.cpr");
}

TEST_F(Form1FindTest, AListWithoutAChosenKindFindsNothing) {
    view.searchText = "Reverb";
    view.searchType = -1;
    form.cmdFind_Click();
    EXPECT_EQ(Found(), test::Texts{""});
    EXPECT_EQ(form.lstSongs().Text(form.lstSongs().RowAt(1)), "No projects found");
}

TEST_F(Form1FindTest, EnterSearchesAndOtherKeysDoNot) {
    view.searchText = "Reverb";
    form.txtSearchText_KeyPress('a');
    EXPECT_EQ(form.lstSongs().ColumnCount(), 0);
    form.txtSearchText_KeyPress(13);
    EXPECT_EQ(Found(), test::Texts{"Reverb"});
}

TEST_F(Form1FindTest, EnterWhileASearchIsRunningDoesNothing) {
    form.DisableButtons();
    view.searchText = "Reverb";
    form.txtSearchText_KeyPress(13);
    EXPECT_EQ(form.lstSongs().ColumnCount(), 0);
}

TEST_F(Form1FindTest, TheWindowIsRepaintedUnderAnHourglass) {
    view.events.clear();
    form.cmdFind_Click();
    EXPECT_EQ(view.events, (test::Texts{"Hourglass", "ShowList", "Repaint", "Usual pointer",
                                        "AutoSizeListViewColumns", "SetLedger", "ShowList"}));
}

TEST_F(Form1FindTest, AHeaderClickSortsAndShowsTheList) {
    view.searchText = "Reverb";
    view.searchType = 3;
    form.cmdFind_Click();
    view.events.clear();
    form.lstSongs_ColumnClick(3);
    EXPECT_EQ(Found(), (test::Texts{"Reverb", "Big Reverb"})) << "the first click sorts downwards";
    form.lstSongs_ColumnClick(3);
    EXPECT_EQ(Found(), (test::Texts{"Big Reverb", "Reverb"}));
    EXPECT_EQ(view.events, (test::Texts{"ShowList", "ShowList"}));
}

TEST_F(Form1FindTest, TheHeaderOfTheColumnThatOrdersTheRowsIsKnown) {
    EXPECT_EQ(form.SortedColumn(), 0);
    form.cmdFind_Click();
    EXPECT_EQ(form.SortedColumn(), 0) << "the order of the file";
    form.lstSongs_ColumnClick(3);
    EXPECT_EQ(form.SortedColumn(), 3);
    form.cmdButtons_Click(kUsedReportItem);
    EXPECT_EQ(form.SortedColumn(), 1) << "a report is sorted by its first column";
}

TEST_F(Form1FindTest, TheListIsSavedUnderItsTitle) {
    form.cmdButtons_Click(kUsedReportItem);
    form.SaveList(folder.Path("list.html"));
    EXPECT_NE(folder.Read("list.html").find("<h1>Used Plugins</h1>"), std::string::npos);
}

TEST_F(Form1FindTest, ADoubleClickOpensTheProject) {
    view.searchText = "Reverb";
    form.cmdFind_Click();
    form.lstSongs().Select(1);
    form.lstSongs_DblClick();
    ASSERT_EQ(desktop.shellRequests.size(), 1U);
    EXPECT_EQ(desktop.shellRequests[0].file, folder.Path("song.cpr"));
}

}  // namespace
}  // namespace marlo
