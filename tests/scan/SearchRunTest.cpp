#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "scan/SearchRun.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/HeldFiles.h"
#include "tests/support/Projects.h"

namespace marlo {
namespace {

using Texts = std::vector<std::string>;

class SearchRunTest : public test::ApplicationTest {
  protected:
    SearchRunTest() { window.folder = folder.MakeFolder("songs"); }

    SearchSummary Search() {
        const auto summary = GetPlugins4AllProjects(application, window, lists);
        EXPECT_EQ(lists.ProjectFiles.UpperBound(), 0U);
        EXPECT_EQ(lists.PluginOccurrences.size(), 0U);
        EXPECT_EQ(lists.ProjectPluginKeys.UpperBound(), 0U);
        EXPECT_EQ(lists.ProjectPluginStates.UpperBound(), 0U);
        return summary;
    }

    /// Adds a project that uses one plug-in. @return its path.
    std::string AddProject(const std::string& name, const std::string& plugin) const {
        return test::AddProject(folder, name, {{.name = plugin}});
    }

    /// Presses Cancel when events run for the `time`-th time.
    void CancelAtEvents(int time) {
        window.onEvents = [this, time, count = 0]() mutable {
            if (++count == time)
                window.cancelTag = kCancelTag;
        };
    }

    std::string ErrorsMessage() const {
        return "Errors occurred. See " + folder.Path() + "\\results\\errorlog.txt for details";
    }

    SearchLists lists;
};

TEST_F(SearchRunTest, AWholeRunDoesEverythingInOrder) {
    const std::string a = AddProject("a.cpr", "Delay");
    const std::string b = AddProject("b.cpr", "Echo");
    Search();
    EXPECT_EQ(
        window.events,
        (Texts{"PickFolder: Please select a folder: ", "Message: Include Subfolders in the search?",
               "Text1: (1) Compiling list of SX Projects...", "Text2: ", "DisableButtons", "Events",
               // discovery
               "Text2: " + a, "Repaint", "Events", "Text2: " + b, "Repaint", "Events",
               // the scans
               "Text1: (2) Finding Plugins (50%) ...", "Text2: " + a, "Repaint", "Events",
               "Text1: (2) Finding Plugins (100%) ...", "Text2: " + b, "Repaint", "Events",
               // the result files
               "Text1: (3) Writing to file...", "Text2: ", "Repaint",
               // the end
               "ClearStatusBar", "Repaint", "EnableButtons"}));
    EXPECT_EQ(folder.Read("resultfiles/tln.csv"),
              "\"Delay\",\"VST\",\"On\"\r\n\"Echo\",\"VST\",\"On\"\r\n");
}

TEST_F(SearchRunTest, TheQuestionAboutSubfoldersHasThreeButtonsAndAnEmptyTitle) {
    Search();
    ASSERT_EQ(window.messages.size(), 1U);
    EXPECT_EQ(window.messages[0].buttons, MessageButtons::YesNoCancel);
    EXPECT_EQ(window.messages[0].icon, MessageIcon::Question);
    EXPECT_EQ(window.messages[0].title, "");
}

TEST_F(SearchRunTest, TheAnswersAndTheTimeAreRemembered) {
    AddProject("a.cpr", "Delay");
    window.answers = {MessageAnswer::No};
    EXPECT_EQ(Search().outcome, SearchOutcome::Written);
    EXPECT_EQ(getSetting(application, 1), window.folder);
    EXPECT_EQ(getSetting(application, 3), "0");
    EXPECT_EQ(getSetting(application, 11), "11-15-2026 03:10:22");
}

TEST_F(SearchRunTest, YesStores1AndIncludesTheSubfolders) {
    AddProject("sub/a.cpr", "Delay");
    window.answers = {MessageAnswer::Yes};
    EXPECT_EQ(Search().projects, 1U);
    EXPECT_EQ(getSetting(application, 3), "1");
}

TEST_F(SearchRunTest, NoLeavesTheSubfoldersOut) {
    AddProject("sub/a.cpr", "Delay");
    window.answers = {MessageAnswer::No};
    EXPECT_EQ(Search().projects, 0U);
}

TEST_F(SearchRunTest, ThePickerStartsAtTheLastFolder) {
    WriteSetting(application, 1, "D:\\Songs");
    Search();
    EXPECT_EQ(window.Count("PickFolder: Please select a folder: D:\\Songs"), 1U);
}

TEST_F(SearchRunTest, CancellingThePickerShowsNoMessageAndEnablesTheButtons) {
    WriteSetting(application, 1, "D:\\Songs");
    window.folder = "";
    EXPECT_EQ(Search().outcome, SearchOutcome::NotStarted);
    EXPECT_EQ(window.events, (Texts{"PickFolder: Please select a folder: D:\\Songs",
                                    "ClearStatusBar", "Repaint", "EnableButtons"}));
    EXPECT_EQ(getSetting(application, 1), "D:\\Songs");
}

TEST_F(SearchRunTest, CancellingTheQuestionRemembersTheFolderOnly) {
    window.answers = {MessageAnswer::Cancel};
    EXPECT_EQ(Search().outcome, SearchOutcome::NotStarted);
    EXPECT_EQ(getSetting(application, 1), window.folder);
    EXPECT_EQ(getSetting(application, 3), "");
    EXPECT_EQ(window.Count("DisableButtons"), 0U);
    EXPECT_EQ(window.Count("EnableButtons"), 1U);
    EXPECT_FALSE(folder.Exists("resultfiles/results.csv"));
}

TEST_F(SearchRunTest, AFolderWithoutProjectsWritesThreeEmptyFilesAndTheTime) {
    EXPECT_EQ(Search().outcome, SearchOutcome::Written);
    for (const char* name : {"results.csv", "fln.csv", "tln.csv"})
        EXPECT_EQ(folder.Read(std::string("resultfiles/") + name), "") << name;
    EXPECT_EQ(getSetting(application, 11), "11-15-2026 03:10:22");
}

TEST_F(SearchRunTest, WithOneProjectTheOnlyPercentageIs100) {
    AddProject("a.cpr", "Delay");
    Search();
    EXPECT_EQ(window.Phases(), (Texts{"(1) Compiling list of SX Projects...",
                                      "(2) Finding Plugins (100%) ...", "(3) Writing to file..."}));
}

TEST_F(SearchRunTest, TheFirstOfFourProjectsShows25) {
    for (const char* name : {"a.cpr", "b.cpr", "c.cpr", "d.cpr"})
        AddProject(name, "Delay");
    Search();
    EXPECT_EQ(window.Phases()[1], "(2) Finding Plugins (25%) ...");
    EXPECT_EQ(window.Phases()[4], "(2) Finding Plugins (100%) ...");
}

TEST_F(SearchRunTest, CancelDuringTheScanShowsCancelledAndLeavesTheOldFiles) {
    folder.Write("resultfiles/results.csv", "old");
    AddProject("a.cpr", "Delay");
    AddProject("b.cpr", "Echo");
    CancelAtEvents(5);  // 1: the start; 2, 3: discovery; 4: before a; 5: before b
    const auto summary = Search();
    EXPECT_EQ(summary.outcome, SearchOutcome::Cancelled);
    EXPECT_EQ(summary.projects, 1U);
    EXPECT_EQ(window.MessageTexts().back(), "Cancelled");
    EXPECT_EQ(window.messages.back().icon, MessageIcon::Information);
    EXPECT_EQ(window.messages.back().title, "Marlo");
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "old");
    EXPECT_FALSE(folder.Exists("resultfiles/fln.csv"));
    EXPECT_EQ(getSetting(application, 11), "");
    EXPECT_EQ(window.Count("EnableButtons"), 1U);
}

TEST_F(SearchRunTest, CancelDuringDiscoveryTakesEffectBeforeTheFirstScan) {
    AddProject("a.cpr", "Delay");
    AddProject("b.cpr", "Echo");
    CancelAtEvents(2);
    const auto summary = Search();
    EXPECT_EQ(summary.outcome, SearchOutcome::Cancelled);
    EXPECT_EQ(summary.projects, 0U);
    EXPECT_EQ(window.Count("Text2: " + folder.Path("songs/b.cpr")), 1U);
    EXPECT_EQ(window.Phases().back(), "(2) Finding Plugins (50%) ...");
}

TEST_F(SearchRunTest, ACancelMarkFromBeforeIsClearedAtTheStart) {
    window.cancelTag = kCancelTag;
    EXPECT_EQ(Search().outcome, SearchOutcome::Written);
}

TEST_F(SearchRunTest, AProjectThatCannotBeScannedDoesNotStopTheRun) {
    AddProject("a.cpr", "Delay");
    folder.Write("songs/b.cpr", "CcnK....FBCh" + std::string(100, '\0'));
    AddProject("c.cpr", "Echo");
    const auto summary = Search();
    EXPECT_EQ(summary.outcome, SearchOutcome::Written);
    EXPECT_EQ(summary.projects, 3U);
    EXPECT_EQ(summary.failedProjects, 1U);
    EXPECT_EQ(folder.Read("resultfiles/tln.csv"),
              "\"Delay\",\"VST\",\"On\"\r\n\"Echo\",\"VST\",\"On\"\r\n");
    EXPECT_EQ(getSetting(application, 11), "11-15-2026 03:10:22");
    EXPECT_EQ(window.MessageTexts().back(), ErrorsMessage());
    EXPECT_EQ(window.messages.back().icon, MessageIcon::None);
    EXPECT_EQ(window.events.back(), "Message: " + ErrorsMessage());
}

TEST_F(SearchRunTest, AFileThatVanishesBeforeItsScanIsAFailedProject) {
    const std::string path = AddProject("a.cpr", "Delay");
    window.onEvents = [&] {
        if (window.text2 == path)
            std::filesystem::remove(path);
    };
    EXPECT_EQ(Search().failedProjects, 1U);
    EXPECT_EQ(Log(), LogLine("GetPlugins4Project " + path + " ", 53, "File not found"));
}

TEST_F(SearchRunTest, ALockedProjectStillGivesResultFilesForTheOthers) {
    const std::string locked = AddProject("a.cpr", "Delay");
    AddProject("b.cpr", "Echo");
    std::filesystem::permissions(folder.Path(), std::filesystem::perms{0777});
    std::filesystem::permissions(folder.Path("resultfiles"), std::filesystem::perms{0777});
    {
        const test::UnreadableFile file(locked);
        EXPECT_EQ(Search().failedProjects, 1U);
    }
    EXPECT_EQ(folder.Read("resultfiles/tln.csv"), "\"Echo\",\"VST\",\"On\"\r\n");
    EXPECT_EQ(window.MessageTexts().back(), ErrorsMessage());
    EXPECT_EQ(Log(), LogLine("GetPlugins4Project " + locked + " ", 70, "Permission denied"));
}

TEST_F(SearchRunTest, CancelAtTheFileInUseQuestionCountsAsACompletedRun) {
    if (!test::HeldFiles::ArePossible())
        GTEST_SKIP() << test::kNoHeldFiles;
    AddProject("a.cpr", "Delay");
    const std::string results = folder.Write("resultfiles/results.csv", "old");
    std::filesystem::permissions(folder.Path(), std::filesystem::perms{0777});
    window.answers = {MessageAnswer::Yes, MessageAnswer::Cancel};
    {
        const test::HeldFiles held({results});
        EXPECT_EQ(Search().outcome, SearchOutcome::Written);
    }
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "old");
    EXPECT_EQ(window.messages.size(), 2U);
    EXPECT_EQ(getSetting(application, 11), "11-15-2026 03:10:22");
}

TEST_F(SearchRunTest, CancelAfterAFailedScanShowsBothMessages) {
    folder.Write("songs/a.cpr", "CcnK....FBCh" + std::string(100, '\0'));
    AddProject("b.cpr", "Delay");
    CancelAtEvents(5);
    Search();
    EXPECT_EQ(window.MessageTexts(),
              (Texts{"Include Subfolders in the search?", "Cancelled", ErrorsMessage()}));
}

TEST_F(SearchRunTest, ResultFilesThatCannotBeWrittenAreSaidAndTheTimeNotStored) {
    AddProject("a.cpr", "Delay");
    folder.MakeFolder("resultfiles/results.csv");
    EXPECT_EQ(Search().outcome, SearchOutcome::Failed);
    EXPECT_EQ(window.MessageTexts().back(),
              "Errors occurred while creating the result files. See " + folder.Path() +
                  "\\resultfiles\\errorlog.txt for details.");
    EXPECT_EQ(window.messages.back().icon, MessageIcon::Exclamation);
    EXPECT_EQ(getSetting(application, 11), "");
    EXPECT_EQ(window.Count("EnableButtons"), 1U);
}

TEST_F(SearchRunTest, AFailureDuringDiscoveryIsLoggedAndSaidAndTheWindowRestored) {
    const std::string path = AddProject("a.cpr", "Delay");
    folder.MakeFolder("songs/sub");
    window.onEvents = [&] {
        if (window.text2 == path)
            std::filesystem::remove(folder.Path("songs/sub"));
    };
    folder.Write("resultfiles/results.csv", "old");
    EXPECT_EQ(Search().outcome, SearchOutcome::Failed);
    EXPECT_EQ(window.MessageTexts().back(), "An unexpected error occurred.");
    EXPECT_EQ(window.messages.back().icon, MessageIcon::Exclamation);
    EXPECT_EQ(window.messages.back().title, "Marlo");
    EXPECT_EQ(Log(), LogLine("GetPlugins4AllProjects", 76, "Path not found"));
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "old");
    EXPECT_EQ(Texts(window.events.end() - 3, window.events.end()),
              (Texts{"ClearStatusBar", "Repaint", "EnableButtons"}));
}

TEST_F(SearchRunTest, SettingsThatCannotBeWrittenDoNotStopTheRun) {
    AddProject("a.cpr", "Delay");
    folder.MakeFolder("settings.ini");
    EXPECT_EQ(Search().outcome, SearchOutcome::Written);
}

TEST_F(SearchRunTest, ASecondRunStartsFromNothing) {
    AddProject("a.cpr", "Delay");
    Search();
    Search();
    EXPECT_EQ(folder.Read("resultfiles/results.csv"),
              "\"" + folder.Path("songs/a.cpr") + "\",\"Delay\",\"VST    \",\"On\"\r\n");
}

}  // namespace
}  // namespace marlo
