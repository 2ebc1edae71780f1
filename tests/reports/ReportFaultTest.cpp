// What reports and the search of the result files do when the machine under them fails.

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "reports/ReportView.h"
#include "reports/ResultSearch.h"
#include "tests/support/HeldFiles.h"
#include "tests/support/ReportTest.h"

namespace marlo {
namespace {

using test::Texts;

class ReportFaultTest : public test::ReportTest {
  protected:
    ReportFaultTest() {
        WriteInstalled({{"VST", "Reverb", "/vst/Reverb.dll"}});
        WriteUsed({{"Reverb", "VST", "On"}});
        WriteRecords("fln.csv", {{folder.Write("a.cpr", ""), "Reverb", "VST", "On"}});
        // Settings and log for whoever this process is.
        for (const char* name : {"", "resultfiles"})
            std::filesystem::permissions(folder.Path(name), std::filesystem::perms{0777});
    }

    void Find() {
        cmdFind_Click(pane, {.mode = SearchMode::ProjectsByPlugin,
                             .txtSearchText = "Reverb",
                             .cboSearchType = MatchType::Contains,
                             .chkIgnoreCase = false});
    }
};

TEST_F(ReportFaultTest, AnUnreadableFileOfUsesIsLoggedAndToldInEachReportOfThem) {
    const test::UnreadableFile unreadable(folder.Path("resultfiles/tln.csv"));
    std::string log;
    for (const auto& [report, procedure] :
         {std::pair(NameOf(ReportKind::Used), "ShowUsedPlugins"),
          std::pair(NameOf(ReportKind::Unused), "ShowUnusedPlugins"),
          std::pair(NameOf(ReportKind::Uninstalled), "ShowUnusedPlugins")}) {
        window.messages.clear();
        ShowInstalledPlugins(pane, report);
        log += LogLine(procedure, 70, "Permission denied");
        EXPECT_EQ(Log(), log) << report;
        EXPECT_EQ(window.MessageTexts(), kUnexpected) << report;
        EXPECT_EQ(Names(), Texts{}) << report;
    }
}

TEST_F(ReportFaultTest, AnUnreadableListOfInstalledPluginsIsLoggedAndTold) {
    const test::UnreadableFile unreadable(folder.Path("resultfiles/installedplugins.csv"));
    ShowInstalledPlugins(pane, NameOf(ReportKind::All));
    EXPECT_EQ(Log(), LogLine("ShowAllPlugins", 70, "Permission denied"));
    EXPECT_EQ(window.MessageTexts(), kUnexpected);
    EXPECT_EQ(Names(), Texts{});
}

TEST_F(ReportFaultTest, AnUnreadableFileOfProjectsIsLoggedAndToldByTheSearch) {
    const test::UnreadableFile unreadable(folder.Path("resultfiles/fln.csv"));
    Find();
    EXPECT_EQ(Log(), LogLine("SearchResultFiles", 70, "Permission denied"));
    EXPECT_EQ(window.MessageTexts(), kUnexpected);
    EXPECT_EQ(Names(), Texts{});
}

TEST_F(ReportFaultTest, AFileInTheResultFoldersPlaceIsToldAndStays) {
    std::filesystem::remove_all(folder.Path("resultfiles"));
    folder.Write("resultfiles", "a file");
    Texts logged;
    application.onErrorLogged = [&](const ErrorEntry& entry) { logged.push_back(entry.procedure); };
    ShowInstalledPlugins(pane, NameOf(ReportKind::Used));
    Find();
    EXPECT_EQ(logged, (Texts{"ShowUsedPlugins", "SearchResultFiles"}));
    EXPECT_EQ(window.messages.size(), 2U);
    EXPECT_EQ(folder.Read("resultfiles"), "a file");
}

TEST_F(ReportFaultTest, ALineEndInANameMakesTwoRowsOfItsRecordAndIsLogged) {
    WriteUsed({{"a\r\nb", "VST", "On"}});
    ShowInstalledPlugins(pane, NameOf(ReportKind::Uninstalled));
    EXPECT_EQ(Names(), (Texts{"", "b"}));
    EXPECT_EQ(Log(), LogLine("SplitRecord: \"a 3", 5, "Invalid procedure call"));
    EXPECT_TRUE(window.messages.empty());
}

TEST_F(ReportFaultTest, ANulInANameIsShown) {
    const std::string name("a\0b", 3);
    WriteUsed({{name, "VST", "On"}});
    ShowInstalledPlugins(pane, NameOf(ReportKind::Uninstalled));
    EXPECT_EQ(Names(), Texts{name});
    EXPECT_EQ(Log(), "");
}

TEST_F(ReportFaultTest, ANameOf10MegabytesIsWholeInItsRow) {
    std::string name;
    name.resize(10'000'000, 'n');
    WriteUsed({{name, "VST", "On"}, {"Reverb", "VST", "On"}});
    ShowInstalledPlugins(pane, NameOf(ReportKind::Used));
    ASSERT_EQ(pane.lstSongs.RowCount(), 2U);
    const test::ShownRows rows = Rows();
    // Not compared by EXPECT_EQ, which would print it.
    EXPECT_TRUE(rows[0].cells[0] == name);
    EXPECT_EQ(rows[0].cells[3], "On");
    EXPECT_TRUE(rows[0].isGreyed);
    EXPECT_EQ(rows[1].cells, (Texts{"Reverb", "VST", "/vst/Reverb.dll", "On"}));
    EXPECT_EQ(Log(), "");
}

}  // namespace
}  // namespace marlo
