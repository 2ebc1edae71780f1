#include <cstdlib>
#include <ctime>
#include <exception>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "reports/ReportView.h"
#include "reports/ResultSearch.h"
#include "tests/support/ReportTest.h"
#include "tests/support/System.h"
#include "ui/ResultListView.h"

namespace marlo {
namespace {

using test::Texts;

class ColumnClickTest : public test::ReportTest {
  protected:
    /// Makes a list with two columns, its rows not sorted.
    void Show(const Texts& headers, const std::vector<Texts>& rows) {
        AddColumns(headers);
        ResultList& list = pane.lstSongs;
        for (const Texts& cells : rows) {
            const ResultRow row = list.AddRow(cells[0], cells[0]);
            list.SetSmallIcon(row, kRowIcon);
            list.SetSubItem(row, 1, cells[1]);
        }
    }

    void ShowDates(const Texts& dates) {
        std::vector<Texts> rows;
        for (const std::string& date : dates)
            rows.push_back({date, date});
        Show({"Project", "Last Modified"}, rows);
    }

    /// Makes a list as a report leaves it.
    void ShowReport() {
        WriteInstalled({{"VST", "b", "/1"}, {"VST", "a", "/2"}, {"VST", "c", "/3"}});
        ShowInstalledPlugins(pane, NameOf(ReportKind::All));
    }

    void Click(int column) { lstSongs_ColumnClick(pane, column); }

    Texts SecondCells() const {
        Texts cells;
        for (const auto& row : Rows())
            cells.push_back(row.cells[1]);
        return cells;
    }
};

TEST_F(ColumnClickTest, AfterAReportTheFirstClickOnAnyColumnTurnsTheOrderRound) {
    ShowReport();
    Click(3);
    EXPECT_EQ(Names(), (Texts{"c", "a", "b"})) << "by path, descending";
    EXPECT_EQ(pane.lastSortColumn, 3);
}

TEST_F(ColumnClickTest, AnotherClickOnTheSameColumnTurnsItBackAndAnotherColumnKeepsTheOrder) {
    ShowReport();
    Click(1);
    EXPECT_EQ(Names(), (Texts{"c", "b", "a"}));
    Click(1);
    EXPECT_EQ(Names(), (Texts{"a", "b", "c"}));
    Click(3);
    EXPECT_EQ(Names(), (Texts{"b", "a", "c"})) << "by path, ascending";
}

TEST_F(ColumnClickTest, InANewWindowTheFirstClickKeepsTheOrder) {
    Show({"A", "B"}, {{"b", ""}, {"a", ""}});
    EXPECT_EQ(pane.lastSortColumn, 0);
    Click(1);
    EXPECT_EQ(Names(), (Texts{"a", "b"}));
}

TEST_F(ColumnClickTest, RowsAddedAfterAClickAreNotSortedIn) {
    Show({"A", "B"}, {{"b", ""}, {"c", ""}});
    Click(1);
    EXPECT_FALSE(pane.lstSongs.IsSorted());
    pane.lstSongs.SetSmallIcon(pane.lstSongs.AddRow("a", "a"), kRowIcon);
    EXPECT_EQ(Names(), (Texts{"b", "c", "a"}));
}

TEST_F(ColumnClickTest, NumbersSortAsTexts) {
    Show({"A", "B"}, {{"x", "9"}, {"y", "10"}});
    Click(2);
    EXPECT_EQ(SecondCells(), (Texts{"10", "9"}));
}

TEST_F(ColumnClickTest, DatesSortByTimeAndComeBackWithoutTheirZeros) {
    ShowDates({"12/20/2006 12:30:00 PM", "10/5/2006 10:07:09 AM", "3/1/2007 1:05:00 AM"});
    Click(2);
    EXPECT_EQ(SecondCells(),
              (Texts{"1/5/2006 1:07:09 AM", "12/2/2006 12:30:00 PM", "3/1/2007 1:05:00 AM"}));
    EXPECT_EQ(Names().front(), "10/5/2006 10:07:09 AM") << "only the second column changes";
    EXPECT_EQ(Log(), "");
}

TEST_F(ColumnClickTest, AfterAReportAndASearchTheFirstClickOnTheDatesSortsThemDescending) {
    test::SetVariable("TZ", "UTC0");
    ShowReport();
    std::vector<Texts> uses;
    const std::vector<std::time_t> moments = {1162050312, 1166617800, 1160042829};
    for (std::size_t i = 0; i < moments.size(); ++i) {
        const std::string project = folder.Write(std::to_string(i) + ".cpr", "");
        folder.SetLastChange(std::to_string(i) + ".cpr", moments[i]);
        uses.push_back({project, "b", "VST", "On"});
    }
    WriteRecords("fln.csv", uses);
    cmdFind_Click(pane, {.txtSearchText = "b"});
    EXPECT_EQ(SecondCells(),
              (Texts{"10/28/2006 3:45:12 PM", "12/20/2006 12:30:00 PM", "10/5/2006 10:07:09 AM"}));
    Click(2);
    EXPECT_EQ(SecondCells(),
              (Texts{"12/2/2006 12:30:00 PM", "1/28/2006 3:45:12 PM", "1/5/2006 1:07:09 AM"}));
    EXPECT_EQ(Log(), "");
}

TEST_F(ColumnClickTest, AnotherColumnLeavesTheDatesAsTheyAre) {
    ShowDates({"10/5/2006 10:07:09 AM"});
    Click(1);
    EXPECT_EQ(SecondCells(), Texts{"10/5/2006 10:07:09 AM"});
}

TEST_F(ColumnClickTest, ACellWithoutATimeIsEmptiedAndLoggedOnce) {
    ShowDates({"10/5/2006"});
    Click(2);
    EXPECT_EQ(SecondCells(), Texts{"// :: AM"});
    EXPECT_EQ(Log(), LogLine("FormatDate:10/5/2006", 5, "Invalid procedure call"));
}

TEST_F(ColumnClickTest, ADateHeaderOnAnyColumnConvertsTheSecondOne) {
    Show({"Last Modified", "B"}, {{"x", "10/5/2006 10:07:09 AM"}});
    Click(1);
    EXPECT_EQ(SecondCells(), Texts{"1/5/2006 1:07:09 AM"});
}

TEST_F(ColumnClickTest, AHeaderInAnotherCaseIsNoDate) {
    Show({"A", "last modified"}, {{"x", "10/5/2006 10:07:09 AM"}});
    Click(2);
    EXPECT_EQ(SecondCells(), Texts{"10/5/2006 10:07:09 AM"});
}

TEST_F(ColumnClickTest, WithoutASecondColumnBothConversionsAreLoggedAndTheRowsSorted) {
    AddColumns({"Last Modified"});
    for (const std::string name : {"b", "a"})
        pane.lstSongs.SetSmallIcon(pane.lstSongs.AddRow(name, name), kRowIcon);
    Click(1);
    EXPECT_EQ(Names(), (Texts{"a", "b"}));
    EXPECT_EQ(Log(), LogLine("FormatDateColumn", 9, "Subscript out of range") +
                         LogLine("UnFormatDateColumn", 9, "Subscript out of range"));
}

TEST_F(ColumnClickTest, WithoutRowsAClickOnTheDatesSortsAndChangesNothing) {
    ShowDates({});
    Click(2);
    EXPECT_EQ(pane.lstSongs.RowCount(), 0U);
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(pane.lastSortColumn, 2);
}

TEST_F(ColumnClickTest, AColumnThatIsNotThereIsLoggedOnly) {
    Show({"A", "B"}, {{"b", ""}, {"a", ""}});
    Click(3);
    EXPECT_EQ(Log(), LogLine("lstSongs_ColumnClick", 9, "Subscript out of range"));
    EXPECT_TRUE(window.messages.empty());
    EXPECT_EQ(Names(), (Texts{"b", "a"}));
    EXPECT_EQ(pane.lastSortColumn, 0);
}

class DoubleClickTest : public test::ReportTest {
  protected:
    /// Shows one row and selects it.
    void Show(const Texts& headers, const Texts& cells) {
        AddColumns(headers);
        ResultList& list = pane.lstSongs;
        const ResultRow row = list.AddRow(cells[0], cells[0]);
        for (std::size_t i = 1; i < cells.size(); ++i)
            list.SetSubItem(row, static_cast<int>(i), cells[i]);
        list.Select(1);
    }

    void ShowPath(const std::string& path) { Show({"Used Plugins", "Path"}, {"Reverb", path}); }

    void DoubleClick() { lstSongs_DblClick(pane); }

    /// The one thing that the shell was asked.
    platform::ShellRequest Request() const {
        EXPECT_EQ(desktop.shellRequests.size(), 1U);
        return desktop.shellRequests.empty() ? platform::ShellRequest()
                                             : desktop.shellRequests.front();
    }
};

TEST_F(DoubleClickTest, APathsFolderIsOpenedInTheExplorer) {
    ShowPath(" C:\\Plugins\\Sub\\Reverb.dll ");
    DoubleClick();
    EXPECT_EQ(Request().verb, "Open");
    EXPECT_EQ(Request().file, "explorer.exe");
    EXPECT_EQ(Request().parameters, "C:\\Plugins\\Sub");
    EXPECT_EQ(Request().folder, "0");
    EXPECT_EQ(Request().showState, 1);
    EXPECT_TRUE(window.messages.empty());
}

TEST_F(DoubleClickTest, APathOfThisMachineHasAFolderToo) {
    ShowPath(folder.Path("a folder; rm x/Reverb.dll"));
    DoubleClick();
    EXPECT_EQ(Request().parameters, folder.Path("a folder; rm x"));
}

TEST_F(DoubleClickTest, APathWithoutFolderOrNoneAtAllDoesNothing) {
    for (const std::string path : {"", "   ", "!Not Installed!", "Reverb.dll"}) {
        pane.lstSongs.ClearRows();
        ShowPath(path);
        DoubleClick();
    }
    EXPECT_TRUE(desktop.shellRequests.empty());
    EXPECT_TRUE(window.messages.empty());
    EXPECT_EQ(Log(), "");
}

TEST_F(DoubleClickTest, AProjectIsOpenedItself) {
    Show({"Project", "Last Modified"}, {"/songs/a b.cpr", "x"});
    DoubleClick();
    EXPECT_EQ(Request().verb, "Open");
    EXPECT_EQ(Request().file, "/songs/a b.cpr");
    EXPECT_FALSE(Request().isProgram) << "it is never executed";
    EXPECT_EQ(Request().parameters, "");
    EXPECT_EQ(Request().folder, "0");
    EXPECT_EQ(Request().showState, 1);
}

TEST_F(DoubleClickTest, TheFirstColumnOfTheTwoDecides) {
    Show({"A", "Path", "Project"}, {"a", "C:\\x\\y.dll", "p"});
    DoubleClick();
    EXPECT_EQ(Request().parameters, "C:\\x");
}

TEST_F(DoubleClickTest, AProjectInALaterColumnStillOpensTheMainText) {
    Show({"A", "Project"}, {"a", "p"});
    DoubleClick();
    EXPECT_EQ(Request().file, "a");
}

TEST_F(DoubleClickTest, AFailureOfTheShellHasTheSameMessageForBoth) {
    desktop.shellAnswer = 32;
    ShowPath("C:\\x\\y.dll");
    DoubleClick();
    pane.lstSongs.RemoveColumn(1);
    pane.lstSongs.RemoveColumn(1);
    pane.lstSongs.ClearRows();
    Show({"Project"}, {"p"});
    DoubleClick();
    const std::string text = "Cannot open the folder at the moment";
    EXPECT_EQ(window.MessageTexts(), (Texts{text, text}));
    for (const Message& message : window.messages) {
        EXPECT_EQ(message.icon, MessageIcon::Information);
        EXPECT_EQ(message.buttons, MessageButtons::Ok);
        EXPECT_EQ(message.title, "Marlo");
    }
    EXPECT_EQ(Log(), "");
}

TEST_F(DoubleClickTest, AnAnswerAbove32IsSuccess) {
    desktop.shellAnswer = 33;
    ShowPath("C:\\x\\y.dll");
    DoubleClick();
    EXPECT_TRUE(window.messages.empty());
}

TEST_F(DoubleClickTest, WithoutASelectedRowItFailsAndIsOnlyLogged) {
    ShowPath("C:\\x\\y.dll");
    pane.lstSongs.SelectNone();
    DoubleClick();
    EXPECT_EQ(Log(), LogLine("lstSongs_dblClick", 91, "Object variable not set"));
    EXPECT_TRUE(window.messages.empty());
    EXPECT_TRUE(desktop.shellRequests.empty());
}

TEST_F(DoubleClickTest, WithoutEitherColumnNothingHappensEvenWithoutARow) {
    AddColumns({"Uninstalled Plugins", "path", "PROJECT"});
    DoubleClick();
    EXPECT_EQ(Log(), "");
    EXPECT_TRUE(desktop.shellRequests.empty());
}

TEST_F(DoubleClickTest, APathInTheFirstColumnFailsAndIsOnlyLogged) {
    Show({"Path", "B"}, {"C:\\x\\y.dll", "b"});
    DoubleClick();
    EXPECT_EQ(Log(), LogLine("lstSongs_dblClick", 9, "Subscript out of range"));
    EXPECT_TRUE(window.messages.empty());
}

}  // namespace
}  // namespace marlo
