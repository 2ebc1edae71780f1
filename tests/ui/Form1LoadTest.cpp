#include <filesystem>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "platform/FileSystem.h"
#include "tests/ui/Form1Test.h"

namespace marlo {
namespace {

using test::Form1Test;

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

}  // namespace
}  // namespace marlo
