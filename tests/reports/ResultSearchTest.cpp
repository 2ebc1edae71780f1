#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "reports/ReportView.h"
#include "reports/ResultSearch.h"
#include "tests/support/ReportTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using test::ShownRow;
using test::ShownRows;
using test::Texts;

constexpr const char* kDate = "10/28/2006 3:45:12 PM";

class ResultSearchTest : public test::ReportTest {
  protected:
    ResultSearchTest() {
        test::SetVariable("TZ", "UTC0");
        WriteInstalled({{"VST", "Reverb", "/vst/Reverb.dll"}});
        search.cboSearchType = MatchType::Contains;
    }

    /// Makes a project file that was changed at `kDate`. @return its path.
    std::string Project(const std::string& name) const {
        std::string path = folder.Write(name, "");
        folder.SetLastChange(name, 1162050312);
        return path;
    }

    void WriteUses(const std::vector<Texts>& records) const { WriteRecords("fln.csv", records); }

    ShownRows Find(const std::string& text) {
        search.txtSearchText = text;
        cmdFind_Click(pane, search);
        return Rows();
    }

    /// The plug-ins in the rows of a search.
    Texts FindNames(const std::string& text) {
        Texts names;
        for (const ShownRow& row : Find(text))
            names.push_back(row.cells.size() > 2 ? row.cells[2] : "");
        return names;
    }

    SearchPane search;
};

TEST_F(ResultSearchTest, ARowHasProjectDatePluginTypeAndState) {
    const std::string project = Project("a.cpr");
    WriteUses({{project, "Reverb", "VST    ", "On"}, {project, "Delay", "DirectX", "Off"}});
    EXPECT_EQ(Find("Rev"), (ShownRows{{{project, kDate, "Reverb", "VST", "On"}}}));
    EXPECT_EQ(Headers(), (Texts{"Project", "Last Modified", "Plugin", "Type", "Status"}));
    EXPECT_EQ(pane.lstSongs.Key(pane.lstSongs.RowAt(1)), project + "ReverbVSTOn");
    EXPECT_EQ(Log(), "");
}

TEST_F(ResultSearchTest, APluginThatIsNotInstalledIsGreyedInBothModes) {
    const std::string project = Project("a.cpr");
    WriteUses({{project, "Reverb", "VST", "On"}, {project, "reverb", "VST", "On"}});
    const ShownRows expected = {{{project, kDate, "Reverb", "VST", "On"}},
                                {{project, kDate, "reverb", "VST", "On"}, true}};
    EXPECT_EQ(Find("everb"), expected);
    search.mode = SearchMode::PluginsInProject;
    EXPECT_EQ(Find("a.cpr"), expected);
}

TEST_F(ResultSearchTest, TheModeTellsWhatIsCompared) {
    WriteUses(
        {{Project("Verb.cpr"), "Delay", "VST", "On"}, {Project("b.cpr"), "Reverb", "VST", "On"}});
    EXPECT_EQ(FindNames("erb"), Texts{"Reverb"});
    search.mode = SearchMode::PluginsInProject;
    EXPECT_EQ(FindNames("erb"), Texts{"Delay"});
}

TEST_F(ResultSearchTest, ContainsIgnoringCaseMatchesReverbForVerb) {
    WriteUses({{Project("a.cpr"), "Reverb", "VST", "On"}});
    EXPECT_EQ(FindNames("VERB"), Texts{""}) << "the placeholder";
    search.chkIgnoreCase = true;
    EXPECT_EQ(FindNames("VERB"), Texts{"Reverb"});
}

TEST_F(ResultSearchTest, StartsWithAnEmptyTextListsEveryLineThatTheSettingsLetThrough) {
    const std::string project = Project("a.cpr");
    WriteUses({{project, "A", "VST", "On"},
               {project, "B", "DirectX", "On"},
               {project, "C", "VST", "Off"},
               {project, "", "VST", "On"}});
    search.cboSearchType = MatchType::StartsWith;
    EXPECT_EQ(FindNames(""), (Texts{"A", "B", "C"}));
    IgnoreDirectX();
    IgnoreOff();
    EXPECT_EQ(FindNames(""), Texts{"A"});
}

TEST_F(ResultSearchTest, ExactlyAnEmptyTextListsOnlyEmptyFields) {
    const std::string project = Project("a.cpr");
    WriteUses({{project, "A", "VST", "On"}, {project, "", "VST", "On"}});
    search.cboSearchType = MatchType::Exact;
    EXPECT_EQ(Find("").front().cells, (Texts{project, kDate, "", "VST", "On"}));
    EXPECT_EQ(pane.lstSongs.RowCount(), 1U);
}

TEST_F(ResultSearchTest, IgnoredDirectXPluginsAreLeftOutWithTheTypeColumn) {
    const std::string project = Project("a.cpr");
    IgnoreDirectX();
    WriteUses({{project, "Reverb", "DirectX", "On"}, {project, "Reverb", "VST", "Off"}});
    EXPECT_EQ(Find("Reverb"), (ShownRows{{{project, kDate, "Reverb", "Off"}}}));
    EXPECT_EQ(Headers(), (Texts{"Project", "Last Modified", "Plugin", "Status"}));
}

TEST_F(ResultSearchTest, IgnoredUsesThatAreOffAreLeftOutWithTheStatusColumn) {
    const std::string project = Project("a.cpr");
    IgnoreOff();
    WriteUses({{project, "Reverb", "DirectX", "On"}, {project, "Reverb", "VST", "Off"}});
    EXPECT_EQ(Find("Reverb"), (ShownRows{{{project, kDate, "Reverb", "DirectX"}}}));
    EXPECT_EQ(Headers(), (Texts{"Project", "Last Modified", "Plugin", "Type"}));
}

TEST_F(ResultSearchTest, NothingFoundGivesThePlaceholderUnderTheColumns) {
    WriteUses({{Project("a.cpr"), "Reverb", "VST", "On"}});
    EXPECT_EQ(Find("Delay"), (ShownRows{{{"No projects found", "", "", "", ""}}}));
    EXPECT_EQ(pane.lstSongs.Key(pane.lstSongs.RowAt(1)), "No projects found");
    WriteUses({});
    EXPECT_EQ(Names(), Texts{"No projects found"});
}

TEST_F(ResultSearchTest, ALineThatComesTwiceEndsTheSearchWithTheRowsSoFar) {
    const std::string project = Project("a.cpr");
    WriteUses({{project, "Reverb", "VST", "On"},
               {project, "Reverb", "VST", "On"},
               {project, "Reverb 2", "VST", "On"}});
    EXPECT_EQ(FindNames("Reverb"), Texts{"Reverb"});
    EXPECT_EQ(Log(), LogLine("SearchResultFiles", 35602, "Key is not unique in collection"));
    EXPECT_EQ(window.MessageTexts(), kUnexpected);
    EXPECT_EQ(window.messages.front().icon, MessageIcon::Exclamation);
    EXPECT_TRUE(pane.lstSongs.IsVisible());
    EXPECT_EQ(window.events.back(), "ClearStatusBar");
}

TEST_F(ResultSearchTest, ALineThatComesTwiceWithoutMatchingDoesNoHarm) {
    const std::string project = Project("a.cpr");
    WriteUses({{project, "Delay", "VST", "On"},
               {project, "Delay", "VST", "On"},
               {project, "Reverb", "VST", "On"}});
    EXPECT_EQ(FindNames("Reverb"), Texts{"Reverb"});
    EXPECT_EQ(Log(), "");
}

TEST_F(ResultSearchTest, AMissingProjectEndsTheSearchAndItsRowHasOnlyItsName) {
    const std::string project = Project("a.cpr");
    const std::string gone = folder.Path("gone.cpr");
    WriteUses({{project, "Reverb", "VST", "On"},
               {gone, "Reverb", "VST", "On"},
               {Project("b.cpr"), "Reverb", "VST", "On"}});
    EXPECT_EQ(Find("Reverb"),
              (ShownRows{{{project, kDate, "Reverb", "VST", "On"}}, {{gone, "", "", "", ""}}}));
    EXPECT_EQ(Log(), LogLine("SearchResultFiles", 53, "File not found"));
    EXPECT_EQ(window.MessageTexts(), kUnexpected);
    EXPECT_TRUE(pane.lstSongs.IsVisible());
}

TEST_F(ResultSearchTest, AFolderIsNoProject) {
    WriteUses({{folder.MakeFolder("a.cpr"), "Reverb", "VST", "On"}});
    Find("Reverb");
    EXPECT_EQ(Log(), LogLine("SearchResultFiles", 53, "File not found"));
}

TEST_F(ResultSearchTest, AMissingResultFileIsLoggedAndToldAndTheColumnsAreThere) {
    EXPECT_EQ(Find("Reverb"), ShownRows{});
    EXPECT_EQ(Log(), LogLine("SearchResultFiles", 53, "File not found"));
    EXPECT_EQ(window.MessageTexts(), kUnexpected);
    EXPECT_EQ(Headers().size(), 5U);
    EXPECT_TRUE(pane.lstSongs.IsVisible());
}

TEST_F(ResultSearchTest, WithoutTheInstalledPluginsEachHitIsLoggedAndGreyed) {
    std::filesystem::remove(folder.Path("resultfiles/installedplugins.csv"));
    const std::string project = Project("a.cpr");
    WriteUses({{project, "Reverb", "VST", "On"},
               {project, "Delay", "VST", "On"},
               {project, "Reverb", "VST", "Off"}});
    const ShownRows rows = Find("Reverb");
    EXPECT_EQ(rows.size(), 2U);
    EXPECT_TRUE(rows.front().isGreyed && rows.back().isGreyed);
    const std::string line = LogLine("PluginIsInstalled", 53, "File not found");
    EXPECT_EQ(Log(), line + line);
    EXPECT_TRUE(window.messages.empty());
}

TEST_F(ResultSearchTest, AMalformedLineIsLoggedAndComparedAsFarAsItGoes) {
    const std::string project = Project("a.cpr");
    folder.Write("resultfiles/fln.csv", Quoted(project) + ",\"Reverb\"\r\n");
    EXPECT_EQ(Find("Reverb").front().cells, (Texts{project, kDate, "Reverb", "", ""}));
    EXPECT_EQ(Log(), LogLine("SplitRecord: " + Quoted(project) + ",\"Reverb\" 4", 5,
                             "Invalid procedure call"));
}

TEST_F(ResultSearchTest, AProjectWithACommaInItsNameShiftsTheFieldsBehindIt) {
    WriteUses({{Project("a,b.cpr"), "Reverb", "VST", "On"}});
    EXPECT_EQ(Find("Reverb"), (ShownRows{{{"No projects found", "", "", "", ""}}}));
    EXPECT_EQ(Find("b.cpr").front().cells.front(), folder.Path("a"));
    EXPECT_EQ(Log(), LogLine("SearchResultFiles", 53, "File not found"));
}

TEST_F(ResultSearchTest, AProjectInAJapaneseFolderIsFoundAndDated) {
    const std::string project = Project("曲 🎹/Ré.cpr");
    WriteUses({{project, "R\xE9verb", "VST", "On"}});
    EXPECT_EQ(Find("Réverb").front().cells, (Texts{project, kDate, "R\xE9verb", "VST", "On"}));
}

TEST_F(ResultSearchTest, TheWindowIsRepaintedUnderTheHourglassBeforeTheSearchBlocks) {
    WriteUses({});
    bool hadRows = true;
    bool wasVisible = true;
    std::string status;
    window.onRepaint = [&] {
        hadRows = pane.lstSongs.RowCount() > 0;
        wasVisible = pane.lstSongs.IsVisible();
        status = window.text1;
    };
    Find("Reverb");
    EXPECT_EQ(window.events, (Texts{"Hourglass", "Text1: Searching...", "Repaint", "Usual pointer",
                                    "AutoSizeListViewColumns", "SetListViewLedger ffffff fff3ef 2",
                                    "ClearStatusBar"}));
    EXPECT_FALSE(hadRows);
    EXPECT_FALSE(wasVisible);
    EXPECT_EQ(status, "Searching...");
    EXPECT_TRUE(pane.lstSongs.IsVisible());
}

TEST_F(ResultSearchTest, TheLastSortColumnIsForgotten) {
    WriteUses({});
    pane.lastSortColumn = 1;
    Find("Reverb");
    EXPECT_EQ(pane.lastSortColumn, -1);
}

TEST_F(ResultSearchTest, RowsStandInTheOrderOfTheFile) {
    const std::string b = Project("b.cpr");
    const std::string a = Project("a.cpr");
    WriteUses({{b, "Reverb", "VST", "On"}, {a, "Reverb", "VST", "On"}});
    Find("Reverb");
    EXPECT_EQ(Names(), (Texts{b, a}));
}

TEST_F(ResultSearchTest, TheSortStateOfAnEarlierReportStays) {
    const std::string b = Project("b.cpr");
    const std::string a = Project("a.cpr");
    WriteUses({{b, "Reverb", "VST", "On"}, {a, "Reverb", "VST", "On"}});
    WriteUsed({});
    ShowInstalledPlugins(pane, "ShowUsed");
    Find("Reverb");
    EXPECT_EQ(Names(), (Texts{a, b}));
    EXPECT_TRUE(pane.lstSongs.IsSorted());
}

TEST_F(ResultSearchTest, AFailureInFrontOfTheSearchLeavesTheListHiddenUnderTheHourglass) {
    WriteUses({});
    window.onRepaint = [] { throw RunTimeError(ErrorNumber::InvalidProcedureCall); };
    Find("Reverb");
    EXPECT_EQ(Log(), LogLine("cmdFind_Click", 5, "Invalid procedure call"));
    EXPECT_EQ(window.MessageTexts(), kUnexpected);
    EXPECT_FALSE(pane.lstSongs.IsVisible());
    EXPECT_EQ(window.Count("Usual pointer"), 0U);
}

TEST_F(ResultSearchTest, AFailureBehindTheSearchLeavesTheListHiddenUnderTheUsualPointer) {
    WriteUses({});
    window.onAutoSize = [] { throw RunTimeError(ErrorNumber::InvalidProcedureCall); };
    Find("Reverb");
    EXPECT_EQ(Log(), LogLine("cmdFind_Click", 5, "Invalid procedure call"));
    EXPECT_FALSE(pane.lstSongs.IsVisible());
    EXPECT_EQ(window.Count("Usual pointer"), 1U);
    EXPECT_EQ(window.text1, "Searching...") << "the status box is not cleared";
}

}  // namespace
}  // namespace marlo
