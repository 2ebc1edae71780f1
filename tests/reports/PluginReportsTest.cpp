#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "reports/PluginReports.h"
#include "tests/support/ReportTest.h"

namespace marlo {
namespace {

using test::ShownRows;
using test::Texts;

constexpr const char* kReverbPath = "C:\\Plugins\\Reverb.dll";

/// A test of the reports by themselves, with all columns.
class PluginReportsTest : public test::ReportTest {
  protected:
    ShownRows All() {
        AddColumns({"Installed Plugins", "Type", "Path"});
        ShowAllPlugins(pane, 2, 3);
        return Rows();
    }
    ShownRows Used() {
        AddColumns({"Used Plugins", "Type", "Path", "Status"});
        ShowUsedPlugins(pane, 2, 3, 4);
        return Rows();
    }
    ShownRows Unused() {
        AddColumns({"Unused Plugins", "Type", "Path"});
        ShowUnusedPlugins(pane, 2, 3);
        return Rows();
    }
    ShownRows Uninstalled() {
        AddColumns({"Uninstalled Plugins", "Type", "Status"});
        ShowUninstalledPlugins(pane, 2, 3);
        return Rows();
    }

    void ExpectUnexpectedError(const std::string& logLine) const {
        EXPECT_EQ(Log(), logLine);
        EXPECT_EQ(window.MessageTexts(), kUnexpected);
        EXPECT_EQ(window.messages.front().icon, MessageIcon::Exclamation);
        EXPECT_EQ(window.messages.front().buttons, MessageButtons::Ok);
        EXPECT_EQ(window.messages.front().title, "Marlo");
    }
};

using ShowAllPluginsTest = PluginReportsTest;

TEST_F(ShowAllPluginsTest, ARowHasNameTypeAndAVstPluginsPath) {
    WriteInstalled({{"DirectX", "Echo", "<empty>"}, {"VST", "Reverb", kReverbPath}});
    EXPECT_EQ(All(), (ShownRows{{{"Echo", "DirectX", ""}}, {{"Reverb", "VST", kReverbPath}}}));
    EXPECT_EQ(Log(), "");
    EXPECT_TRUE(window.events.empty());
}

TEST_F(ShowAllPluginsTest, AFileIsReadWhateverTheCaseOfItsName) {
    std::filesystem::rename(folder.Path("resultfiles"), folder.Path("RESULTFILES"));
    folder.Write("RESULTFILES/InstalledPlugins.CSV", "\"DirectX\",\"Echo\",\"<empty>\"\r\n");
    EXPECT_EQ(All(), (ShownRows{{{"Echo", "DirectX", ""}}}));
}

TEST_F(ShowAllPluginsTest, IgnoredDirectXPluginsAreLeftOutAndTheTypeIsNotFilled) {
    IgnoreDirectX();
    WriteInstalled({{"DirectX", "Echo", "<empty>"}, {"VST", "Reverb", kReverbPath}});
    EXPECT_EQ(All(), (ShownRows{{{"Reverb", "", kReverbPath}}}));
}

TEST_F(ShowAllPluginsTest, TwoIdenticalLinesGiveOneRow) {
    WriteInstalled({{"VST", "Reverb", "x"}, {"VST", "Reverb", "x"}, {"VST", "Reverb", "y"}});
    EXPECT_EQ(All(), (ShownRows{{{"Reverb", "VST", "x"}}, {{"Reverb", "VST", "y"}}}));
}

TEST_F(ShowAllPluginsTest, FieldsThatJoinToTheSameKeyGiveOneRow) {
    WriteInstalled({{"VST", "Reverb", "x"}, {"T", "ReverbVS", "x"}, {"STx", "ReverbV", ""}});
    EXPECT_EQ(All(), (ShownRows{{{"Reverb", "VST", "x"}}}));
}

TEST_F(ShowAllPluginsTest, AnEmptyFileGivesThePlaceholder) {
    WriteInstalled({});
    EXPECT_EQ(All(), (ShownRows{{{"No plugins found", "", ""}}}));
    EXPECT_EQ(pane.lstSongs.Key(pane.lstSongs.RowAt(1)), "No plugins found");
}

TEST_F(ShowAllPluginsTest, AFileOfIgnoredPluginsGivesThePlaceholder) {
    IgnoreDirectX();
    WriteInstalled({{"DirectX", "Echo", "<empty>"}});
    EXPECT_EQ(All(), (ShownRows{{{"No plugins found", "", ""}}}));
}

TEST_F(ShowAllPluginsTest, OnlyASettingThatIsExactly1IsInForce) {
    WriteInstalled({{"DirectX", "Echo", "<empty>"}});
    for (const char* value : {"", "0", "01", "2", "yes"}) {
        WriteSetting(application, setting::kIgnoreDirectX, value);
        pane.lstSongs.ClearRows();
        EXPECT_EQ(All().front().cells.front(), "Echo") << value;
    }
}

TEST_F(ShowAllPluginsTest, AMissingFileIsLoggedAndTold) {
    EXPECT_EQ(All(), ShownRows{});
    ExpectUnexpectedError(LogLine("ShowAllPlugins", 53, "File not found"));
}

TEST_F(ShowAllPluginsTest, AColumnThatIsNotThereEndsTheReportWithTheRowsSoFar) {
    WriteInstalled({{"VST", "A", "x"}, {"VST", "B", "y"}});
    AddColumns({"Installed Plugins", "Type"});
    ShowAllPlugins(pane, 2, 3);
    EXPECT_EQ(Rows(), (ShownRows{{{"A", "VST"}}}));
    ExpectUnexpectedError(LogLine("ShowAllPlugins", 9, "Subscript out of range"));
}

TEST_F(ShowAllPluginsTest, AResultFolderOfAnotherSpellingIsUsed) {
    WriteInstalled({{"VST", "Reverb", "x"}});
    std::filesystem::rename(folder.Path("resultfiles"), folder.Path("RESULTFILES"));
    EXPECT_EQ(All().size(), 1U);
}

TEST_F(ShowAllPluginsTest, AMalformedLineIsLoggedAndShownAsFarAsItGoes) {
    folder.Write("resultfiles/installedplugins.csv", "\"VST\",\"Reverb\"\r\n\r\n");
    EXPECT_EQ(All(), (ShownRows{{{"Reverb", "VST", ""}}, {{"", "", ""}}}));
    EXPECT_EQ(Log(), LogLine("SplitRecord: \"VST\",\"Reverb\" 3", 5, "Invalid procedure call") +
                         LogLine("SplitRecord:  3", 5, "Invalid procedure call"));
    EXPECT_TRUE(window.messages.empty());
}

using ShowUsedPluginsTest = PluginReportsTest;

TEST_F(ShowUsedPluginsTest, AnInstalledPluginHasItsPathAndTheNormalColour) {
    WriteUsed({{"Reverb", "VST", "On"}});
    WriteInstalled({{"VST", "Reverb", kReverbPath}});
    EXPECT_EQ(Used(), (ShownRows{{{"Reverb", "VST", kReverbPath, "On"}}}));
}

TEST_F(ShowUsedPluginsTest, APluginInstalledAsAnotherTypeIsNotInstalledAndGreyed) {
    WriteUsed({{"Reverb", "DirectX", "On"}});
    WriteInstalled({{"VST", "Reverb", kReverbPath}});
    EXPECT_EQ(Used(), (ShownRows{{{"Reverb", "DirectX", "!Not Installed!", "On"}, true}}));
}

TEST_F(ShowUsedPluginsTest, ANameInAnotherCaseIsNotInstalled) {
    WriteUsed({{"reverb", "VST", "On"}});
    WriteInstalled({{"VST", "Reverb", kReverbPath}});
    EXPECT_EQ(Used(), (ShownRows{{{"reverb", "VST", "!Not Installed!", "On"}, true}}));
}

TEST_F(ShowUsedPluginsTest, AnInstalledDirectXPluginHasNoPath) {
    WriteUsed({{"Echo", "DirectX", "Off"}});
    WriteInstalled({{"DirectX", "Echo", "<empty>"}});
    EXPECT_EQ(Used(), (ShownRows{{{"Echo", "DirectX", "", "Off"}}}));
}

TEST_F(ShowUsedPluginsTest, OfSeveralPathsTheFirstCounts) {
    WriteUsed({{"Reverb", "VST", "On"}});
    WriteInstalled({{"DirectX", "Reverb", "d"}, {"VST", "Reverb", "a"}, {"VST", "Reverb", "b"}});
    EXPECT_EQ(Used().front().cells[2], "a");
}

TEST_F(ShowUsedPluginsTest, IgnoredPluginsStayOnlyTheirColumnsAreNotFilled) {
    IgnoreDirectX();
    IgnoreOff();
    WriteUsed({{"Echo", "DirectX", "Off"}});
    WriteInstalled({});
    EXPECT_EQ(Used(), (ShownRows{{{"Echo", "", "!Not Installed!", ""}, true}}));
}

TEST_F(ShowUsedPluginsTest, ARowKeyHasNameTypePathAndState) {
    WriteUsed({{"A", "VST", "On"}, {"A", "VST", "On"}, {"A", "VST", "Off"}, {"A", "X", "On"}});
    WriteInstalled({{"VST", "A", "/a"}});
    EXPECT_EQ(Used().size(), 3U);
    EXPECT_EQ(pane.lstSongs.Key(pane.lstSongs.RowAt(1)), "AVST/aOn");
    EXPECT_EQ(pane.lstSongs.Key(pane.lstSongs.RowAt(3)), "AXOn");
}

TEST_F(ShowUsedPluginsTest, AnEmptyFileGivesThePlaceholderWithoutAskingForTheInstalledPlugins) {
    WriteUsed({});
    EXPECT_EQ(Used(), (ShownRows{{{"No plugins found", "", "", ""}}}));
    EXPECT_EQ(Log(), "");
}

TEST_F(ShowUsedPluginsTest, WithoutTheInstalledPluginsItEndsAtItsFirstRow) {
    WriteUsed({{"A", "VST", "On"}, {"B", "VST", "On"}});
    EXPECT_EQ(Used(), ShownRows{});
    ExpectUnexpectedError(LogLine("ShowUsedPlugins", 53, "File not found"));
}

TEST_F(ShowUsedPluginsTest, AMissingFileIsLoggedAndTold) {
    WriteInstalled({});
    EXPECT_EQ(Used(), ShownRows{});
    ExpectUnexpectedError(LogLine("ShowUsedPlugins", 53, "File not found"));
}

TEST_F(ShowUsedPluginsTest, AMalformedInstalledPluginIsLoggedOnceWhenARowGetsThere) {
    WriteUsed({{"A", "VST", "On"}, {"B", "VST", "On"}, {"C", "VST", "On"}});
    folder.Write("resultfiles/installedplugins.csv", "\"VST\",\"A\",\"a\"\r\nbroken\r\n");
    EXPECT_EQ(Used().size(), 3U);
    EXPECT_EQ(Log(), LogLine("SplitRecord: broken 3", 5, "Invalid procedure call"));
}

using ShowUnusedPluginsTest = PluginReportsTest;

TEST_F(ShowUnusedPluginsTest, PluginsThatNoProjectUsesAreListed) {
    WriteInstalled({{"VST", "A", "/a"}, {"VST", "B", "/b"}, {"DirectX", "C", "<empty>"}});
    WriteUsed({{"A", "VST", "On"}});
    EXPECT_EQ(Unused(), (ShownRows{{{"B", "VST", "/b"}}, {{"C", "DirectX", ""}}}));
}

TEST_F(ShowUnusedPluginsTest, AUseOfAnotherTypeOrCaseDoesNotCount) {
    WriteInstalled({{"VST", "A", "/a"}, {"VST", "B", "/b"}});
    WriteUsed({{"A", "DirectX", "On"}, {"b", "VST", "On"}});
    EXPECT_EQ(Unused().size(), 2U);
}

TEST_F(ShowUnusedPluginsTest, APluginThatIsOnlyUsedOffIsUsed) {
    WriteInstalled({{"VST", "A", "/a"}});
    WriteUsed({{"A", "VST", "Off"}});
    EXPECT_EQ(Unused(), (ShownRows{{{"No plugins found", "", ""}}}));
}

TEST_F(ShowUnusedPluginsTest, APluginThatIsOnlyUsedOffIsUnusedWhereThoseUsesAreIgnored) {
    IgnoreOff();
    WriteInstalled({{"VST", "A", "/a"}, {"VST", "B", "/b"}});
    WriteUsed({{"A", "VST", "Off"}, {"B", "VST", "Off"}, {"B", "VST", "On"}});
    EXPECT_EQ(Unused(), (ShownRows{{{"A", "VST", "/a"}}}));
}

TEST_F(ShowUnusedPluginsTest, IgnoredDirectXPluginsAreLeftOut) {
    IgnoreDirectX();
    WriteInstalled({{"DirectX", "C", "<empty>"}, {"VST", "B", "/b"}});
    WriteUsed({});
    EXPECT_EQ(Unused(), (ShownRows{{{"B", "", "/b"}}}));
}

TEST_F(ShowUnusedPluginsTest, AnEmptyFileGivesThePlaceholderWithoutAskingForTheUses) {
    WriteInstalled({});
    EXPECT_EQ(Unused(), (ShownRows{{{"No plugins found", "", ""}}}));
    EXPECT_EQ(Log(), "");
}

TEST_F(ShowUnusedPluginsTest, MissingUsesAreNotAskedForByIgnoredPlugins) {
    IgnoreDirectX();
    WriteInstalled({{"DirectX", "C", "<empty>"}});
    EXPECT_EQ(Unused(), (ShownRows{{{"No plugins found", "", ""}}}));
    EXPECT_EQ(Log(), "");
}

TEST_F(ShowUnusedPluginsTest, MissingUsesEndItAtItsFirstRow) {
    WriteInstalled({{"VST", "A", "/a"}});
    EXPECT_EQ(Unused(), ShownRows{});
    ExpectUnexpectedError(LogLine("ShowUnusedPlugins", 53, "File not found"));
}

using ShowUninstalledPluginsTest = PluginReportsTest;

TEST_F(ShowUninstalledPluginsTest, UsedPluginsThatAreNotInstalledAreListed) {
    WriteUsed({{"A", "VST", "On"}, {"B", "DirectX", "Off"}});
    WriteInstalled({{"VST", "A", "/a"}});
    EXPECT_EQ(Uninstalled(), (ShownRows{{{"B", "DirectX", "Off"}}}));
}

TEST_F(ShowUninstalledPluginsTest, TheNameAloneMatchesWhateverTheType) {
    WriteUsed({{"Reverb", "DirectX", "On"}});
    WriteInstalled({{"VST", "Reverb", kReverbPath}});
    EXPECT_EQ(Uninstalled(), ShownRows{});
}

TEST_F(ShowUninstalledPluginsTest, ANameInAnotherCaseIsNotInstalled) {
    WriteUsed({{"reverb", "VST", "On"}});
    WriteInstalled({{"VST", "Reverb", kReverbPath}});
    EXPECT_EQ(Uninstalled(), (ShownRows{{{"reverb", "VST", "On"}}}));
}

TEST_F(ShowUninstalledPluginsTest, WithEverythingInstalledTheListStaysEmpty) {
    WriteUsed({{"A", "VST", "On"}});
    WriteInstalled({{"VST", "A", "/a"}});
    EXPECT_EQ(Uninstalled(), ShownRows{});
    EXPECT_TRUE(window.messages.empty());
}

TEST_F(ShowUninstalledPluginsTest, AnEmptyFileGivesAnEmptyList) {
    WriteUsed({});
    EXPECT_EQ(Uninstalled(), ShownRows{});
    EXPECT_EQ(Log(), "");
}

TEST_F(ShowUninstalledPluginsTest, IgnoredPluginsStayOnlyTheirColumnsAreNotFilled) {
    IgnoreDirectX();
    IgnoreOff();
    WriteUsed({{"Echo", "DirectX", "Off"}});
    WriteInstalled({});
    EXPECT_EQ(Uninstalled(), (ShownRows{{{"Echo", "", ""}}}));
}

TEST_F(ShowUninstalledPluginsTest, ARowKeyHasNameTypeAndState) {
    WriteUsed({{"A", "VST", "On"}, {"A", "VST", "On"}, {"A", "VST", "Off"}});
    WriteInstalled({});
    EXPECT_EQ(Uninstalled().size(), 2U);
    EXPECT_EQ(pane.lstSongs.Key(pane.lstSongs.RowAt(2)), "AVSTOff");
}

TEST_F(ShowUninstalledPluginsTest, WithoutTheInstalledPluginsEachQuestionIsLoggedAndAllAreListed) {
    WriteUsed({{"A", "VST", "On"}, {"B", "VST", "On"}});
    EXPECT_EQ(Uninstalled().size(), 2U);
    const std::string line = LogLine("PluginIsInstalled", 53, "File not found");
    EXPECT_EQ(Log(), line + line);
    EXPECT_TRUE(window.messages.empty());
}

TEST_F(ShowUninstalledPluginsTest, AFailureIsLoggedUnderTheUnusedReportsName) {
    WriteInstalled({});
    EXPECT_EQ(Uninstalled(), ShownRows{});
    ExpectUnexpectedError(LogLine("ShowUnusedPlugins", 53, "File not found"));
}

}  // namespace
}  // namespace marlo
