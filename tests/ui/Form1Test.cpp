#include <algorithm>
#include <filesystem>
#include <functional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "platform/FileSystem.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/ReportTest.h"
#include "tests/ui/FakeFormView.h"
#include "tools/ProjectWriter.h"
#include "ui/Form1.h"

namespace marlo {
namespace {

constexpr const char* kHelpSite = "https://marlo.example";

class Form1Test : public test::ReportTest {
  protected:
    void WriteResultFiles() const {
        WriteRecords("results.csv", {});
        WriteRecords("fln.csv", {});
        WriteUsed({{"Reverb", "VST", "On"}, {"Echo", "DirectX", "Off"}});
        WriteInstalled({{"VST", "Reverb", "/vst/Reverb.dll"}});
    }

    /// The indexes of the items that can be used now.
    std::set<std::size_t> Enabled() const { return ItemsWith(&FormState::Item::isEnabled); }
    std::set<std::size_t> Hovered() const { return ItemsWith(&FormState::Item::isHovered); }

    std::set<std::size_t> ItemsWith(bool FormState::Item::*mark) const {
        std::set<std::size_t> found;
        for (std::size_t i = 0; i < kCommandItemCount; ++i)
            if (view.state.cmdbuttons.at(i).*mark)
                found.insert(i);
        return found;
    }

    test::Texts MessageTexts() const {
        test::Texts texts;
        for (const Message& message : view.messages)
            texts.push_back(message.text);
        return texts;
    }

    std::size_t Count(const std::string& event) const {
        return static_cast<std::size_t>(std::count(view.events.begin(), view.events.end(), event));
    }

    void AddProject(const std::string& name) const {
        folder.Write("songs/" + name,
                     std::string(100, '\0') + tools::PluginBytes({.name = "Reverb"}));
    }

    test::FakeFormView view;
    Form1 form{application, view, kHelpSite};

    const std::set<std::size_t> allButCancel = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
    const std::set<std::size_t> withoutResults = {0, 1, 8, 9, 10, 11};
};

using Form1LoadTest = Form1Test;

TEST_F(Form1LoadTest, OnAFirstStartOnlyTheCommandsWithoutResultFilesAreUsable) {
    form.Form_Load();
    EXPECT_EQ(Enabled(), withoutResults);
    EXPECT_FALSE(view.state.isFindEnabled);
    EXPECT_TRUE(view.state.isDonateEnabled);
    EXPECT_TRUE(view.state.isDonateVisible);
}

TEST_F(Form1LoadTest, WithEveryResultFileAllButCancelAreUsable) {
    WriteResultFiles();
    form.Form_Load();
    EXPECT_EQ(Enabled(), allButCancel);
    EXPECT_TRUE(view.state.isFindEnabled);
}

TEST_F(Form1LoadTest, ASingleMissingResultFileDisablesAllSixCommandsThatNeedThem) {
    for (const std::string missing :
         {"results.csv", "fln.csv", "tln.csv", "installedplugins.csv"}) {
        WriteResultFiles();
        std::filesystem::remove(folder.Path("resultfiles/" + missing));
        form.Form_Load();
        EXPECT_EQ(Enabled(), withoutResults) << missing;
        EXPECT_FALSE(view.state.isFindEnabled) << missing;
    }
}

TEST_F(Form1LoadTest, TheItemsHaveTheirCaptions) {
    form.Form_Load();
    const test::Texts captions = {"Search SX Projects",
                                  "Find installed Plugins",
                                  "Show unused Plugins",
                                  "Show used Plugins",
                                  "Show installed Plugins",
                                  "Show uninstalled Plugins",
                                  "Plugins by Project",
                                  "Installed Plugins",
                                  "Options",
                                  "Help",
                                  "About",
                                  "Search for Projects by Plugin",
                                  "Cancel"};
    for (std::size_t i = 0; i < captions.size(); ++i)
        EXPECT_EQ(view.state.cmdbuttons.at(i).caption, captions[i]);
}

TEST_F(Form1LoadTest, TheSavedChoicesAreShown) {
    WriteSetting(application, setting::kSearchType, "2");
    WriteSetting(application, setting::kIgnoreCase, "1");
    form.Form_Load();
    EXPECT_EQ(view.searchTypes,
              (test::Texts{"Exact match", "Starts with", "Ends with", "Contains"}));
    EXPECT_EQ(view.searchType, 2);
    EXPECT_TRUE(view.ignoreCase);
}

TEST_F(Form1LoadTest, WithoutSavedChoicesTheFirstKindIsChosenAndCaseCounts) {
    form.Form_Load();
    EXPECT_EQ(view.searchType, 0);
    EXPECT_FALSE(view.ignoreCase);
}

TEST_F(Form1LoadTest, ADamagedChoiceCountsAsTheFirstKind) {
    for (const char* value : {"4", "-1", "9999999999", "x"}) {
        WriteSetting(application, setting::kSearchType, value);
        form.Form_Load();
        EXPECT_EQ(view.searchType, 0) << value;
        EXPECT_TRUE(view.messages.empty());
    }
}

TEST_F(Form1LoadTest, TheProgramForCsvFilesIsFoundOutAndItsIconShownTwice) {
    desktop.programs[".csv"] = "/bin/sheets";
    desktop.icons["/bin/sheets"] = {"sheets"};
    form.Form_Load();
    EXPECT_EQ(getSetting(application, setting::kCsvProgram), "/bin/sheets");
    for (const auto& box : view.csvIcons)
        EXPECT_EQ(box.events, (test::Texts{"Clear", "Draw sheets"}));
}

TEST_F(Form1LoadTest, AProgramThatWasChosenIsKept) {
    WriteSetting(application, setting::kCsvProgram, "/bin/mine");
    desktop.programs[".csv"] = "/bin/sheets";
    form.Form_Load();
    EXPECT_EQ(getSetting(application, setting::kCsvProgram), "/bin/mine");
}

TEST_F(Form1LoadTest, TheSharedFolderOfTheRegistryBecomesTheFirstVstFolder) {
    registry.SetText(platform::kLocalMachine, "software\\vst", "VSTPluginsPath", "C:\\Vst");
    form.Form_Load();
    EXPECT_EQ(getSetting(application, setting::kFirstVstFolder), "C:\\Vst");
}

TEST_F(Form1LoadTest, TheWindowIsLaidOutGetsItsIconAndStartsItsTimer) {
    form.Form_Load();
    EXPECT_EQ(Count("Place"), 1U);
    EXPECT_GT(view.layout.lstSongs.width, 0);
    EXPECT_EQ(view.programIcon, folder.Path("icons/plug_48x48.ico"));
    EXPECT_EQ(view.timerInterval, 1000);
}

TEST_F(Form1LoadTest, AFailureIsLoggedAndTold) {
    view.failing = "FillSearchTypes";
    form.Form_Load();
    EXPECT_EQ(MessageTexts(), kUnexpected);
    EXPECT_EQ(view.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(Log(), LogLine("Form_Load", 5, "Invalid procedure call"));
    EXPECT_EQ(view.timerInterval, 0) << "the steps behind it do not run";
}

using Form1ButtonsTest = Form1Test;

TEST_F(Form1ButtonsTest, DuringARunCancelIsTheOnlyOneThatCanBeUsed) {
    WriteResultFiles();
    form.Form_Load();
    form.DisableButtons();
    EXPECT_EQ(Enabled(), std::set<std::size_t>{12});
    EXPECT_FALSE(view.state.isFindEnabled);
    EXPECT_FALSE(view.state.isDonateEnabled);
    form.EnableButtons();
    EXPECT_EQ(Enabled(), allButCancel);
    EXPECT_TRUE(view.state.isFindEnabled);
    EXPECT_TRUE(view.state.isDonateEnabled);
}

TEST_F(Form1ButtonsTest, FailuresAreLoggedUnderTheRoutinesNamesAndNotTold) {
    view.failing = "ShowText1";
    form.ClearStatusBar();
    view.failing = "Show";
    form.DisableButtons();
    form.EnableButtons();
    EXPECT_EQ(Log(), LogLine("ClearStatusBar", 5, "Invalid procedure call") +
                         LogLine("DisableButtons", 5, "Invalid procedure call") +
                         LogLine("EnableButtons", 5, "Invalid procedure call"));
    EXPECT_TRUE(view.messages.empty());
}

TEST_F(Form1ButtonsTest, ClearStatusBarEmptiesBothBoxes) {
    form.SetText1("(1)");
    form.SetText2("a");
    EXPECT_EQ(view.text1 + view.text2, "(1)a");
    form.ClearStatusBar();
    EXPECT_EQ(view.text1 + view.text2, "");
}

using Form1ClickTest = Form1Test;

TEST_F(Form1ClickTest, AnIndexThatNoItemHasDoesNothing) {
    for (const int index : {-1, 13, 1000})
        form.cmdButtons_Click(index);
    EXPECT_TRUE(view.events.empty());
    EXPECT_TRUE(desktop.shellRequests.empty());
    EXPECT_EQ(Log(), "");
}

TEST_F(Form1ClickTest, SearchSXProjectsSearchesAndUnlocksTheReports) {
    AddProject("a.cpr");
    WriteInstalled({});
    form.Form_Load();
    EXPECT_EQ(Enabled(), withoutResults);
    view.folders.answer = folder.Path("songs");
    view.answer = MessageAnswer::Yes;
    std::set<std::size_t> during;
    view.onEvents = [&] { during = Enabled(); };
    form.cmdButtons_Click(0);
    ASSERT_EQ(view.folders.requests.size(), 1U);
    EXPECT_EQ(view.folders.requests[0].title, "Please select a folder:");
    EXPECT_EQ(MessageTexts(), test::Texts{"Include Subfolders in the search?"});
    EXPECT_EQ(during, std::set<std::size_t>{12});
    EXPECT_EQ(Enabled(), allButCancel);
    EXPECT_EQ(view.text1 + view.text2, "");
    EXPECT_NE(folder.Read("resultfiles/tln.csv").find("Reverb"), std::string::npos);
}

TEST_F(Form1ClickTest, TheFolderPickerStartsAtTheLastFolder) {
    WriteSetting(application, setting::kLastFolder, folder.Path("songs"));
    form.cmdButtons_Click(0);
    EXPECT_EQ(view.folders.requests[0].initialFolder, folder.Path("songs"));
}

TEST_F(Form1ClickTest, CancelEndsASearchBetweenTwoProjects) {
    AddProject("a.cpr");
    view.folders.answer = folder.Path("songs");
    view.answer = MessageAnswer::Yes;
    view.onEvents = [&] {
        if (view.text1.starts_with("(2)"))
            form.cmdButtons_Click(12);
    };
    form.cmdButtons_Click(0);
    EXPECT_EQ(MessageTexts().back(), "Cancelled");
    EXPECT_FALSE(folder.Exists("resultfiles/tln.csv"));
    EXPECT_EQ(view.state.cmdbuttons[12].caption, "Cancel") << "the mark is not the caption";
}

TEST_F(Form1ClickTest, FindInstalledPluginsTakesTheInventory) {
    folder.Write("vst/Reverb.dll", "");
    WriteSetting(application, setting::kFirstVstFolder, folder.Path("vst"));
    form.cmdButtons_Click(1);
    EXPECT_NE(folder.Read("resultfiles/installedplugins.csv").find("\"Reverb\""),
              std::string::npos);
}

TEST_F(Form1ClickTest, TheReportItemsShowTheirReports) {
    WriteResultFiles();
    const std::vector<std::pair<int, std::string>> reports = {{2, "Unused Plugins"},
                                                              {3, "Used Plugins"},
                                                              {4, "Installed Plugins"},
                                                              {5, "Uninstalled Plugins"}};
    for (const auto& [index, header] : reports) {
        view.events.clear();
        form.cmdButtons_Click(index);
        EXPECT_EQ(form.lstSongs().Header(1), header);
        EXPECT_EQ(form.ListTitle(), header);
        EXPECT_EQ(view.events.back(), "ShowList");
    }
}

TEST_F(Form1ClickTest, TheResultFileItemsOpenTheirFilesInTheChosenProgram) {
    WriteResultFiles();
    WriteSetting(application, setting::kCsvProgram, "/bin/sheets");
    form.cmdButtons_Click(6);
    form.cmdButtons_Click(7);
    ASSERT_EQ(desktop.shellRequests.size(), 2U);
    EXPECT_EQ(desktop.shellRequests[0].parameters, "short:" + folder.Path("resultfiles/fln.csv"));
    EXPECT_EQ(desktop.shellRequests[1].parameters,
              "short:" + folder.Path("resultfiles/installedplugins.csv"));
}

TEST_F(Form1ClickTest, AReportThatFailsShowsWhatItHasBeforeItTells) {
    WriteResultFiles();
    std::filesystem::remove(folder.Path("resultfiles/tln.csv"));
    form.cmdButtons_Click(3);
    ASSERT_EQ(MessageTexts(), kUnexpected);
    EXPECT_EQ(view.events.front(), "ShowList");
}

TEST_F(Form1ClickTest, OptionsAndAboutShowTheirDialogs) {
    form.cmdButtons_Click(8);
    form.cmdButtons_Click(10);
    EXPECT_EQ(view.events, (test::Texts{"ShowOptions", "ShowAbout"}));
}

TEST_F(Form1ClickTest, HelpOpensItsPage) {
    form.cmdButtons_Click(9);
    ASSERT_EQ(desktop.shellRequests.size(), 1U);
    const platform::ShellRequest& request = desktop.shellRequests[0];
    EXPECT_EQ(request.verb, "Open");
    EXPECT_EQ(request.file, "https://marlo.example/2006/10/table-of-contents.html");
    EXPECT_EQ(request.parameters, "");
    EXPECT_EQ(request.folder, "0");
    EXPECT_EQ(request.showState, 1);
    EXPECT_TRUE(view.messages.empty());
}

TEST_F(Form1ClickTest, AHelpPageThatCannotBeOpenedIsTold) {
    desktop.shellAnswer = 32;
    form.cmdButtons_Click(9);
    EXPECT_EQ(MessageTexts(), test::Texts{"Cannot show the help file"});
    EXPECT_EQ(view.messages[0].title, "Marlo");
}

TEST_F(Form1ClickTest, TheSearchModeTogglesByItsCaption) {
    form.cmdButtons_Click(11);
    EXPECT_EQ(view.state.cmdbuttons[11].caption, "List Plugins in Project");
    form.cmdButtons_Click(11);
    EXPECT_EQ(view.state.cmdbuttons[11].caption, "Search for Projects by Plugin");
}

TEST_F(Form1ClickTest, CancelMarksItself) {
    EXPECT_EQ(form.CancelTag(), "");
    form.cmdButtons_Click(12);
    EXPECT_EQ(form.CancelTag(), "Cancel");
}

TEST_F(Form1ClickTest, AFailureIsLoggedAndTold) {
    view.failing = "ShowOptions";
    form.cmdButtons_Click(8);
    EXPECT_EQ(MessageTexts(), kUnexpected);
    EXPECT_EQ(Log(), LogLine("cmdButtons_Click", 5, "Invalid procedure call"));
}

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
    form.cmdButtons_Click(11);
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
    EXPECT_EQ(view.events,
              (test::Texts{"Hourglass", "ShowList", "Repaint", "Usual pointer",
                           "AutoSizeListViewColumns", "SetListViewLedger", "ShowList"}));
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
    form.cmdButtons_Click(3);
    EXPECT_EQ(form.SortedColumn(), 1) << "a report is sorted by its first column";
}

TEST_F(Form1FindTest, TheListIsSavedUnderItsTitle) {
    form.cmdButtons_Click(3);
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

class Form1ResizeTest : public Form1Test {
  protected:
    Form1ResizeTest() {
        WriteSetting(application, setting::kCsvProgram, "/bin/sheets");
        form.Form_Load();
        view.events.clear();
    }

    std::int32_t MenuBottom() const { return view.layout.boxMenu.Bottom(); }

    static constexpr std::int32_t kBelowDonate = 6000 + 465 + 150;
    static constexpr std::int32_t kBelowAbout = 5520 + 195 + 150;
};

TEST_F(Form1ResizeTest, MinimisingLeavesEveryControlWhereItWas) {
    view.isMinimised = true;
    view.client = {0, 0};
    form.Form_Resize();
    EXPECT_TRUE(view.events.empty());
}

TEST_F(Form1ResizeTest, AnEmptyListGetsItsColumnsFittedButNoBands) {
    form.Form_Resize();
    EXPECT_EQ(view.events, (test::Texts{"Place", "AutoSizeListViewColumns"}));
}

TEST_F(Form1ResizeTest, AListWithRowsIsShadedAgain) {
    form.lstSongs().AddColumn("Used Plugins");
    form.lstSongs().AddRow("a", "a");
    form.Form_Resize();
    EXPECT_EQ(view.events, (test::Texts{"Place", "AutoSizeListViewColumns", "SetListViewLedger"}));
}

TEST_F(Form1ResizeTest, AStepThatFailsIsPassedOver) {
    form.lstSongs().AddColumn("Used Plugins");
    form.lstSongs().AddRow("a", "a");
    for (const std::string failing : {"Place", "AutoSizeListViewColumns"}) {
        view.events.clear();
        view.failing = failing;
        form.Form_Resize();
        EXPECT_EQ(Count("SetListViewLedger"), 1U) << failing;
    }
    EXPECT_EQ(Log(), "");
    EXPECT_TRUE(view.messages.empty());
}

TEST_F(Form1ResizeTest, BandsThatCannotBePaintedAreLoggedAndTakenAway) {
    view.failing = "SetListViewLedger";
    form.SetListViewLedger(0, 0, 2);
    EXPECT_EQ(view.events, (test::Texts{"SetListViewLedger", "RemoveListViewLedger"}));
    EXPECT_EQ(Log(), LogLine("SetListViewLedger", 5, "Invalid procedure call"));
}

TEST_F(Form1ResizeTest, ShadingMakesTheListVisible) {
    form.lstSongs().SetVisible(false);
    form.SetListViewLedger(0, 0, 2);
    EXPECT_TRUE(form.lstSongs().IsVisible());
}

TEST_F(Form1ResizeTest, OnAScreenOfAnotherScaleTheWindowIsLaidOutForTheSizesThere) {
    view.sizes.cboSearchType = {1200, 400};
    form.Form_Resize();
    EXPECT_NE(view.layout.cboSearchType.width, 1200)
        << "sizes are asked for when the scale changes";
    form.Form_ScaleChange();
    EXPECT_EQ(view.layout.cboSearchType.width, 1200);
    EXPECT_EQ(view.layout.lstSongs.Right(), view.client.width - 345);
}

TEST_F(Form1ResizeTest, TheMenuEndsBelowTheDonateButtonUntilItsMinuteHasPassed) {
    for (int second = 1; second < 60; ++second)
        form.Timer1_Timer();
    EXPECT_TRUE(view.events.empty()) << "nothing is laid out before";
    form.Form_Resize();
    EXPECT_EQ(MenuBottom(), kBelowDonate);
    EXPECT_TRUE(view.state.isDonateVisible);

    form.Timer1_Timer();
    EXPECT_EQ(MenuBottom(), kBelowAbout);
    EXPECT_FALSE(view.state.isDonateVisible);
    EXPECT_FALSE(view.state.isDonateEnabled);
    EXPECT_EQ(view.timerInterval, 0);
    form.Form_Resize();
    EXPECT_EQ(MenuBottom(), kBelowAbout);
}

TEST_F(Form1ResizeTest, ADonateButtonThatIsGoneStaysGone) {
    for (int second = 1; second <= 60; ++second)
        form.Timer1_Timer();
    form.DisableButtons();
    form.EnableButtons();
    EXPECT_FALSE(view.state.isDonateVisible);
}

using Form1DonateTest = Form1Test;

TEST_F(Form1DonateTest, TheDonateButtonOpensItsPage) {
    form.btnDonate_Click();
    ASSERT_EQ(desktop.shellRequests.size(), 1U);
    EXPECT_EQ(desktop.shellRequests[0].file, "https://marlo.example/2006/10/donate.html");
    EXPECT_EQ(desktop.shellRequests[0].parameters, "");
    EXPECT_EQ(desktop.shellRequests[0].folder, "0");
    EXPECT_TRUE(view.messages.empty());
}

TEST_F(Form1DonateTest, APageOfASiteInAFolderIsOpenedByItsPath) {
    const std::string site = folder.Path("site");
    Form1 offline{application, view, site};
    offline.btnDonate_Click();
    ASSERT_EQ(desktop.shellRequests.size(), 1U);
    EXPECT_EQ(desktop.shellRequests[0].file,
              platform::JoinPath(platform::JoinPath(platform::JoinPath(site, "2006"), "10"),
                                 "donate.html"));
}

TEST_F(Form1DonateTest, APageThatCannotBeOpenedIsToldWithAWarning) {
    desktop.shellAnswer = 32;
    form.btnDonate_Click();
    EXPECT_EQ(MessageTexts(), test::Texts{"Cannot show the donations page"});
    EXPECT_EQ(view.messages[0].icon, MessageIcon::Exclamation);
}

TEST_F(Form1DonateTest, AFailureIsLoggedUnderTheNameOfTheColumnClickAndNotTold) {
    desktop.shellFailure = std::make_exception_ptr(std::runtime_error("no shell"));
    form.btnDonate_Click();
    EXPECT_TRUE(view.messages.empty());
    EXPECT_EQ(Log(), LogLine("lstSongs_ColumnClick", 5, "no shell"));
}

class Form1HoverTest : public Form1Test {
  protected:
    Form1HoverTest() {
        for (std::size_t i = 0; i < kCommandItemCount; ++i)
            form.cmdbuttons_MouseMove(i);
    }
};

TEST_F(Form1HoverTest, TheMouseOverAnItemMarksIt) {
    EXPECT_EQ(Hovered().size(), 13U);
}

TEST_F(Form1HoverTest, TheMouseOverTheWindowClearsEveryMark) {
    form.Form_MouseMove();
    EXPECT_TRUE(Hovered().empty());
}

TEST_F(Form1HoverTest, TheMouseOverTheMenusPictureClearsAllMarksButTheSearchModes) {
    form.imgMenu_MouseMove();
    EXPECT_EQ(Hovered(), std::set<std::size_t>{11});
}

TEST_F(Form1HoverTest, TheMouseOverTheRightPanesPictureClearsTheSearchModesMark) {
    form.imgRightPane_MouseMove();
    EXPECT_EQ(Hovered(), (std::set<std::size_t>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12}));
}

TEST_F(Form1HoverTest, FailuresAreIgnored) {
    view.failing = "Show";
    form.Form_MouseMove();
    form.cmdbuttons_MouseMove(3);
    form.cmdbuttons_MouseMove(13);
    EXPECT_EQ(Log(), "");
}

using Form1CloseTest = Form1Test;

TEST_F(Form1CloseTest, TheChoicesAreSaved) {
    view.searchType = 3;
    view.ignoreCase = true;
    EXPECT_TRUE(form.Form_QueryUnload());
    form.Form_Unload();
    EXPECT_EQ(getSetting(application, setting::kSearchType), "3");
    EXPECT_EQ(getSetting(application, setting::kIgnoreCase), "1");
    view.ignoreCase = false;
    form.Form_Unload();
    EXPECT_EQ(getSetting(application, setting::kIgnoreCase), "0");
}

TEST_F(Form1CloseTest, AWindowClosedDuringASearchCancelsItSilentlyAndThenCloses) {
    AddProject("a.cpr");
    AddProject("b.cpr");
    view.folders.answer = folder.Path("songs");
    view.answer = MessageAnswer::Yes;
    view.onEvents = [&] {
        if (view.text1.starts_with("(2)")) {
            EXPECT_FALSE(form.Form_QueryUnload());
        }
    };
    form.cmdButtons_Click(0);
    EXPECT_EQ(MessageTexts(), test::Texts{"Include Subfolders in the search?"});
    EXPECT_EQ(view.events.back(), "Close");
    EXPECT_TRUE(form.Form_QueryUnload());
    EXPECT_FALSE(folder.Exists("resultfiles/tln.csv"));
}

TEST_F(Form1CloseTest, AWindowClosedDuringAnInventoryCancelsItSilentlyAndThenCloses) {
    folder.Write("vst/Reverb.dll", "");
    WriteSetting(application, setting::kFirstVstFolder, folder.Path("vst"));
    view.onEvents = [&] { EXPECT_FALSE(form.Form_QueryUnload()); };
    form.cmdButtons_Click(1);
    EXPECT_TRUE(view.messages.empty());
    EXPECT_EQ(view.events.back(), "Close");
}

TEST_F(Form1CloseTest, AWindowCanBeClosedAfterARunThatFailedAltogether) {
    view.failing = "ShowMessage";
    view.folders.answer = folder.Path("songs");
    EXPECT_THROW(form.cmdButtons_Click(0), RunTimeError) << "not even the failure can be told";
    EXPECT_TRUE(form.Form_QueryUnload());
}

TEST_F(Form1CloseTest, ARunThatWasNotClosedLeavesTheWindowOpen) {
    form.cmdButtons_Click(1);
    EXPECT_EQ(Count("Close"), 0U);
}

}  // namespace
}  // namespace marlo
