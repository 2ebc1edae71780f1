#include <filesystem>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "platform/FileSystem.h"
#include "tests/ui/Form1Test.h"

namespace marlo {
namespace {

using test::Form1Test;

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
    form.cmdButtons_Click(kSearchItem);
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
    form.cmdButtons_Click(kSearchItem);
    EXPECT_EQ(view.folders.requests[0].initialFolder, folder.Path("songs"));
}

TEST_F(Form1ClickTest, CancelEndsASearchBetweenTwoProjects) {
    AddProject("a.cpr");
    view.folders.answer = folder.Path("songs");
    view.answer = MessageAnswer::Yes;
    view.onEvents = [&] {
        if (view.text1.starts_with("(2)"))
            form.cmdButtons_Click(kCancelItem);
    };
    form.cmdButtons_Click(kSearchItem);
    EXPECT_EQ(MessageTexts().back(), "Cancelled");
    EXPECT_FALSE(folder.Exists("resultfiles/tln.csv"));
    EXPECT_EQ(view.state.cmdbuttons[12].caption, "Cancel") << "the mark is not the caption";
}

TEST_F(Form1ClickTest, FindInstalledPluginsTakesTheInventory) {
    folder.Write("vst/Reverb.dll", "");
    WriteSetting(application, setting::kFirstVstFolder, folder.Path("vst"));
    form.cmdButtons_Click(kInventoryItem);
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
    form.cmdButtons_Click(kProjectPluginsFileItem);
    form.cmdButtons_Click(kInstalledPluginsFileItem);
    ASSERT_EQ(desktop.shellRequests.size(), 2U);
    EXPECT_EQ(desktop.shellRequests[0].parameters, "short:" + folder.Path("resultfiles/fln.csv"));
    EXPECT_EQ(desktop.shellRequests[1].parameters,
              "short:" + folder.Path("resultfiles/installedplugins.csv"));
}

TEST_F(Form1ClickTest, AReportThatFailsShowsWhatItHasBeforeItTells) {
    WriteResultFiles();
    std::filesystem::remove(folder.Path("resultfiles/tln.csv"));
    form.cmdButtons_Click(kUsedReportItem);
    ASSERT_EQ(MessageTexts(), kUnexpected);
    EXPECT_EQ(view.events.front(), "ShowList");
}

TEST_F(Form1ClickTest, OptionsAndAboutShowTheirDialogs) {
    form.cmdButtons_Click(kOptionsItem);
    form.cmdButtons_Click(kAboutItem);
    EXPECT_EQ(view.events, (test::Texts{"ShowOptions", "ShowAbout"}));
}

TEST_F(Form1ClickTest, HelpOpensItsPage) {
    form.cmdButtons_Click(kHelpItem);
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
    form.cmdButtons_Click(kHelpItem);
    EXPECT_EQ(MessageTexts(), test::Texts{"Cannot show the help file"});
    EXPECT_EQ(view.messages[0].title, "Marlo");
}

TEST_F(Form1ClickTest, TheSearchModeTogglesByItsCaption) {
    form.cmdButtons_Click(kSearchModeItem);
    EXPECT_EQ(view.state.cmdbuttons[11].caption, "List Plugins in Project");
    form.cmdButtons_Click(kSearchModeItem);
    EXPECT_EQ(view.state.cmdbuttons[11].caption, "Search for Projects by Plugin");
}

TEST_F(Form1ClickTest, CancelMarksItself) {
    EXPECT_EQ(form.CancelTag(), "");
    form.cmdButtons_Click(kCancelItem);
    EXPECT_EQ(form.CancelTag(), "Cancel");
}

TEST_F(Form1ClickTest, AFailureIsLoggedAndTold) {
    view.failing = "ShowOptions";
    form.cmdButtons_Click(kOptionsItem);
    EXPECT_EQ(MessageTexts(), kUnexpected);
    EXPECT_EQ(Log(), LogLine("cmdButtons_Click", 5, "Invalid procedure call"));
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

TEST_F(Form1HoverTest, AMarkedItemIsNotShownAgainWhileTheMouseMovesOverIt) {
    view.state = {};
    form.cmdbuttons_MouseMove(kSearchItem);
    EXPECT_TRUE(Hovered().empty());
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
    form.cmdbuttons_MouseMove(kUsedReportItem);
    form.cmdbuttons_MouseMove(13);
    EXPECT_EQ(Log(), "");
}

}  // namespace
}  // namespace marlo
