#include <string>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "reports/ReportView.h"
#include "tests/support/ReportTest.h"

namespace marlo {
namespace {

using test::ShownRows;
using test::Texts;

class ReportViewTest : public test::ReportTest {
  protected:
    ReportViewTest() {
        WriteInstalled({{"VST", "b", "/b"}, {"VST", "C", "/c"}, {"DirectX", "a", "<empty>"}});
        WriteUsed({{"z", "VST", "On"}, {"b", "VST", "Off"}, {"Y", "DirectX", "On"}});
    }

    Texts HeadersOf(const char* kind) {
        ShowInstalledPlugins(pane, kind);
        return Headers();
    }
};

TEST_F(ReportViewTest, EachReportHasItsColumns) {
    EXPECT_EQ(HeadersOf("ShowUsed"), (Texts{"Used Plugins", "Type", "Path", "Status"}));
    EXPECT_EQ(HeadersOf("ShowUnused"), (Texts{"Unused Plugins", "Type", "Path"}));
    EXPECT_EQ(HeadersOf("ShowAll"), (Texts{"Installed Plugins", "Type", "Path"}));
    EXPECT_EQ(HeadersOf("ShowUninstalled"), (Texts{"Uninstalled Plugins", "Type", "Status"}));
}

TEST_F(ReportViewTest, IgnoredDirectXPluginsTakeTheTypeColumnAway) {
    IgnoreDirectX();
    EXPECT_EQ(HeadersOf("ShowUsed"), (Texts{"Used Plugins", "Path", "Status"}));
    EXPECT_EQ(Rows().front().cells, (Texts{"b", "/b", "Off"}));
    EXPECT_EQ(HeadersOf("ShowUninstalled"), (Texts{"Uninstalled Plugins", "Status"}));
    EXPECT_EQ(HeadersOf("ShowAll"), (Texts{"Installed Plugins", "Path"}));
}

TEST_F(ReportViewTest, IgnoredUsesThatAreOffTakeTheStatusColumnAway) {
    IgnoreOff();
    EXPECT_EQ(HeadersOf("ShowUsed"), (Texts{"Used Plugins", "Type", "Path"}));
    EXPECT_EQ(HeadersOf("ShowUninstalled"), (Texts{"Uninstalled Plugins", "Type"}));
    EXPECT_EQ(HeadersOf("ShowUnused"), (Texts{"Unused Plugins", "Type", "Path"}));
}

TEST_F(ReportViewTest, WithBothSettingsTheUsedReportHasNameAndPathAndTheUninstalledOneTheName) {
    IgnoreDirectX();
    IgnoreOff();
    EXPECT_EQ(HeadersOf("ShowUsed"), (Texts{"Used Plugins", "Path"}));
    EXPECT_EQ(Rows().front().cells, (Texts{"b", "/b"}));
    EXPECT_EQ(HeadersOf("ShowUninstalled"), Texts{"Uninstalled Plugins"});
    EXPECT_EQ(Names(), (Texts{"Y", "z"}));
    EXPECT_EQ(Log(), "");
}

TEST_F(ReportViewTest, RowsAreInAscendingOrderOfTheNamesWhateverTheFilesSay) {
    pane.lstSongs.SetSortKey(2);
    pane.lstSongs.SetOrder(SortOrder::Descending);
    ShowInstalledPlugins(pane, "ShowAll");
    EXPECT_EQ(Names(), (Texts{"a", "b", "C"}));
    EXPECT_EQ(pane.lstSongs.SortKey(), 0);
    EXPECT_EQ(pane.lstSongs.Order(), SortOrder::Ascending);
    EXPECT_TRUE(pane.lstSongs.IsSorted());
    ShowInstalledPlugins(pane, "ShowUsed");
    EXPECT_EQ(Names(), (Texts{"b", "Y", "z"}));
}

TEST_F(ReportViewTest, TheLastSortColumnIsForgotten) {
    pane.lastSortColumn = 2;
    ShowInstalledPlugins(pane, "ShowAll");
    EXPECT_EQ(pane.lastSortColumn, -1);
}

TEST_F(ReportViewTest, TheSameReportTwiceGivesTheSameList) {
    ShowInstalledPlugins(pane, "ShowUsed");
    const ShownRows first = Rows();
    ShowInstalledPlugins(pane, "ShowUsed");
    EXPECT_EQ(Headers().size(), 4U);
    EXPECT_EQ(Rows(), first);
}

TEST_F(ReportViewTest, TheColumnsAreFittedAndTheRowsShadedWithoutAnHourglass) {
    ShowInstalledPlugins(pane, "ShowAll");
    EXPECT_EQ(window.events,
              (Texts{"AutoSizeListViewColumns", "SetListViewLedger ffffff fff3ef 2"}));
}

TEST_F(ReportViewTest, TheListIsHiddenWhileItIsRebuilt) {
    bool wasVisible = true;
    window.onAutoSize = [&] { wasVisible = pane.lstSongs.IsVisible(); };
    ShowInstalledPlugins(pane, "ShowAll");
    EXPECT_FALSE(wasVisible);
    EXPECT_TRUE(pane.lstSongs.IsVisible());
}

TEST_F(ReportViewTest, AnUnknownKindRunsNoReport) {
    EXPECT_EQ(HeadersOf("showused"), (Texts{"", "Type", "Path"})) << "case counts";
    EXPECT_EQ(Rows(), ShownRows{});
    IgnoreDirectX();
    EXPECT_EQ(HeadersOf(""), (Texts{"", "Path"}));
    EXPECT_TRUE(pane.lstSongs.IsVisible());
    EXPECT_EQ(Log(), "");
}

TEST_F(ReportViewTest, AFailureInTheReportLeavesWhatItFoundSortedAndShown) {
    std::filesystem::remove(folder.Path("resultfiles/tln.csv"));
    ShowInstalledPlugins(pane, "ShowUnused");
    EXPECT_EQ(Log(), LogLine("ShowUnusedPlugins", 53, "File not found"));
    EXPECT_EQ(window.MessageTexts(), kUnexpected);
    EXPECT_TRUE(pane.lstSongs.IsVisible());
    EXPECT_TRUE(pane.lstSongs.IsSorted());
    EXPECT_EQ(Headers().size(), 3U);
}

TEST_F(ReportViewTest, AFailureOfItsOwnLeavesTheListHiddenUntilTheNextReport) {
    window.onAutoSize = [] { throw RunTimeError(ErrorNumber::InvalidProcedureCall); };
    ShowInstalledPlugins(pane, "ShowAll");
    EXPECT_EQ(Log(), LogLine("ShowInstalledPlugins", 5, "Invalid procedure call"));
    EXPECT_EQ(window.MessageTexts(), kUnexpected);
    EXPECT_FALSE(pane.lstSongs.IsVisible());
    EXPECT_FALSE(pane.lstSongs.IsSorted());
    EXPECT_EQ(window.Count("SetListViewLedger ffffff fff3ef 2"), 0U);
    window.onAutoSize = {};
    ShowInstalledPlugins(pane, "ShowAll");
    EXPECT_TRUE(pane.lstSongs.IsVisible());
    EXPECT_EQ(Names(), (Texts{"a", "b", "C"}));
}

}  // namespace
}  // namespace marlo
