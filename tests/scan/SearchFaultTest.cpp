// What a search does when the machine under it fails.

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/ErrorLog.h"
#include "core/Settings.h"
#include "scan/ResultFiles.h"
#include "scan/SearchRun.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/HeldFiles.h"
#include "tests/support/System.h"
#include "tools/ProjectWriter.h"

namespace marlo {
namespace {

using std::filesystem::perms;

using Texts = std::vector<std::string>;

/// The contents of the three result files.
using Contents = Texts;

const std::vector<std::string> kNames = {"results.csv", "fln.csv", "tln.csv"};
const Contents kOld = {"old results", "old fln", "old tln"};

class SearchFaultTest : public test::ApplicationTest {
  protected:
    SearchFaultTest() {
        window.folder = folder.MakeFolder("songs");
        application.onErrorLogged = [this](const ErrorEntry& entry) {
            logged.push_back(entry.procedure + " " + std::to_string(entry.number));
        };
    }

    SearchSummary Search() { return GetPlugins4AllProjects(application, window, lists); }

    void AddProject(const std::string& name, const std::string& plugin) const {
        folder.Write("songs/" + name,
                     std::string(100, '\0') + tools::PluginBytes({.name = plugin}));
    }

    /// Puts old result files in place.
    void WriteOldFiles() const {
        for (std::size_t i = 0; i < kNames.size(); ++i)
            folder.Write("resultfiles/" + kNames[i], kOld[i]);
    }

    Contents ResultFiles() const {
        Contents contents;
        for (const std::string& name : kNames)
            contents.push_back(folder.Read("resultfiles/" + name));
        return contents;
    }

    bool AStagedFileIsLeft() const {
        return std::any_of(kNames.begin(), kNames.end(), [&](const std::string& name) {
            return folder.Exists("resultfiles/" + name + ".new");
        });
    }

    /// Lets an ordinary user write the settings, the log and the result files.
    void OpenToAll() const {
        std::filesystem::permissions(folder.Path(), perms{0777});
        std::filesystem::permissions(folder.Path("resultfiles"), perms{0777});
    }

    /// The window's last `count` events.
    Texts LastEvents(std::ptrdiff_t count) const {
        return {window.events.end() - count, window.events.end()};
    }

    std::string NotCreatedMessage() const {
        return "Errors occurred while creating the result files. See " + folder.Path() +
               "\\resultfiles\\errorlog.txt for details.";
    }

    SearchLists lists;
    Texts logged;  ///< procedures and numbers
};

const Texts kClosingSteps = {"ClearStatusBar", "Repaint", "EnableButtons"};
constexpr const char* kUnexpected = "An unexpected error occurred.";

TEST_F(SearchFaultTest, WhereverTheDiskIsFullASearchLeavesOldFilesOrNewOnes) {
    if (!test::FileSizeLimit::IsPossible())
        GTEST_SKIP() << test::kNoFileSizeLimit;
    AddProject("a.cpr", "Delay");
    AddProject("b.cpr", "Echo");
    Search();
    const Contents complete = ResultFiles();
    const std::string settings = folder.Read("settings.ini");
    for (std::size_t limit = 0; limit <= complete[0].size(); ++limit) {
        WriteOldFiles();
        folder.Write("settings.ini", settings);
        WriteSetting(application, setting::kLastSearch, "before");
        window.messages.clear();
        logged.clear();
        SearchSummary summary;
        {
            const test::FileSizeLimit full(limit);
            summary = Search();
        }
        // The largest of the three comes first.
        const bool fits = limit == complete[0].size();
        EXPECT_EQ(ResultFiles(), fits ? complete : kOld) << limit;
        EXPECT_FALSE(AStagedFileIsLeft()) << limit;
        EXPECT_EQ(summary.outcome, fits ? SearchOutcome::Written : SearchOutcome::Failed) << limit;
        EXPECT_EQ(window.MessageTexts().back() == NotCreatedMessage(), !fits) << limit;
        EXPECT_EQ(std::count(logged.begin(), logged.end(), "CreateResultFiles 61"), fits ? 0 : 1)
            << limit;
        EXPECT_EQ(getSetting(application, setting::kLastSearch), "before")
            << limit << ": the settings are larger than the results here";
    }
}

TEST_F(SearchFaultTest, WhereverTheDiskIsFullEachResultFileIsWholeAndThoseBehindItAreOld) {
    if (!test::FileSizeLimit::IsPossible())
        GTEST_SKIP() << test::kNoFileSizeLimit;
    // Short keys that give each file more bytes than the one before it.
    lists.PluginOccurrences.push_back({"b", ""});
    MergeState(lists.ProjectPluginKeys, lists.ProjectPluginStates, "A", kOn);
    ASSERT_TRUE(CreateResultFiles(application, window, lists));
    const Contents complete = ResultFiles();
    ASSERT_LT(complete[0].size(), complete[1].size());
    ASSERT_LT(complete[1].size(), complete[2].size());
    for (std::size_t limit = 0; limit <= complete[2].size(); ++limit) {
        WriteOldFiles();
        logged.clear();
        bool created = false;
        {
            const test::FileSizeLimit full(limit);
            created = CreateResultFiles(application, window, lists);
        }
        Contents expected;
        for (std::size_t i = 0; i < kNames.size(); ++i)
            expected.push_back(limit < complete[i].size() ? kOld[i] : complete[i]);
        EXPECT_EQ(ResultFiles(), expected) << limit;
        EXPECT_FALSE(AStagedFileIsLeft()) << limit;
        EXPECT_EQ(created, expected == complete) << limit;
        EXPECT_EQ(std::count(logged.begin(), logged.end(), "CreateResultFiles 61"), created ? 0 : 1)
            << limit;
    }
}

TEST_F(SearchFaultTest, AnErrorThatCannotBeToldIsLoggedAndTheClosingStepsAreTaken) {
    AddProject("a.cpr", "Delay");
    window.failing = {"DisableButtons", std::string("Message: ") + kUnexpected};
    EXPECT_EQ(Search().outcome, SearchOutcome::Failed);
    EXPECT_EQ(Log(), LogLine("GetPlugins4AllProjects", 5, "the window fails") +
                         LogLine("GetPlugins4AllProjects", 5, "the window fails"));
    EXPECT_EQ(LastEvents(3), kClosingSteps);
}

TEST_F(SearchFaultTest, AClosingStepThatFailsIsLoggedAndTheNextOnesAreTaken) {
    folder.Write("songs/broken.cpr", "CcnK....FBCh" + std::string(100, '\0'));
    Texts steps = kClosingSteps;
    steps.push_back("Message: Errors occurred. See " + folder.Path() +
                    "\\results\\errorlog.txt for details");
    // The window is painted in the middle of the run, too, and fails there first: see below.
    for (const std::string& step : {steps[0], steps[2], steps[3]}) {
        window.failing = {step};
        logged.clear();
        EXPECT_EQ(Search().outcome, SearchOutcome::Written) << step;
        EXPECT_EQ(std::count(logged.begin(), logged.end(), "GetPlugins4AllProjects 5"), 1) << step;
        EXPECT_EQ(LastEvents(4), steps) << step;
    }
}

TEST_F(SearchFaultTest, WhereTheWindowCannotBePaintedTheRunEndsWithItsCommandsFree) {
    AddProject("a.cpr", "Delay");
    window.failing = {"Repaint"};
    EXPECT_EQ(Search().outcome, SearchOutcome::Failed);
    EXPECT_EQ(logged, (Texts{"GetPlugins4AllProjects 5", "GetPlugins4AllProjects 5"}));
    EXPECT_EQ(window.MessageTexts().back(), kUnexpected);
    EXPECT_EQ(LastEvents(3), kClosingSteps);
}

TEST_F(SearchFaultTest, AFolderWhereANewResultFileIsWrittenFailsAndBothStay) {
    AddProject("a.cpr", "Delay");
    folder.MakeFolder("resultfiles/results.csv.new");
    EXPECT_EQ(Search().outcome, SearchOutcome::Failed);
    EXPECT_EQ(window.MessageTexts().back(), NotCreatedMessage());
    EXPECT_EQ(Log(), LogLine("CreateResultFiles", 75, "Path/File access error"));
    EXPECT_TRUE(folder.Exists("resultfiles/results.csv.new"));
    EXPECT_FALSE(folder.Exists("resultfiles/results.csv"));
    EXPECT_EQ(getSetting(application, setting::kLastSearch), "");
}

TEST_F(SearchFaultTest, AnUnreadableFolderAtAnyDepthEndsTheSearchAndTheOldResultsStay) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    OpenToAll();
    AddProject("a.cpr", "Delay");
    std::string closed = "songs";
    for (int depth = 1; depth <= 3; ++depth) {
        closed += "/sub";
        AddProject(closed.substr(sizeof "songs") + "/b.cpr", "Echo");
        std::filesystem::permissions(folder.Path(closed), perms::none);
        WriteOldFiles();
        {
            const test::OrdinaryUser user;
            EXPECT_EQ(Search().outcome, SearchOutcome::Failed) << depth;
        }
        EXPECT_EQ(logged, Texts{"GetPlugins4AllProjects 70"}) << depth;
        EXPECT_EQ(window.MessageTexts().back(), kUnexpected) << depth;
        EXPECT_EQ(ResultFiles(), kOld) << depth;
        EXPECT_EQ(getSetting(application, setting::kLastSearch), "") << depth;
        logged.clear();
        std::filesystem::permissions(folder.Path(closed), perms{0755});
    }
}

TEST_F(SearchFaultTest, AnUnreadableStartingFolderIsOneWithoutProjects) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    OpenToAll();
    AddProject("a.cpr", "Delay");
    std::filesystem::permissions(folder.Path("songs"), perms::none);
    {
        const test::OrdinaryUser user;
        EXPECT_EQ(Search().outcome, SearchOutcome::Written);
    }
    EXPECT_EQ(ResultFiles(), (Contents{"", "", ""}));
    EXPECT_EQ(Log(), "");
}

TEST_F(SearchFaultTest, AClockSetBackGivesNewResultsUnderTheEarlierTime) {
    AddProject("a.cpr", "Delay");
    folder.Write("songs/broken.cpr", "CcnK....FBCh" + std::string(100, '\0'));
    Search();
    EXPECT_EQ(getSetting(application, setting::kLastSearch), "11-15-2026 03:10:22");
    const std::string firstLog = Log();
    EXPECT_TRUE(firstLog.starts_with("Date: 03:10:22 15/11/2026 Procedure: GetPlugins4Project"));
    AddProject("b.cpr", "Echo");
    clock.now.tm_year -= 1;
    EXPECT_EQ(Search().outcome, SearchOutcome::Written);
    EXPECT_EQ(folder.Read("resultfiles/tln.csv"),
              "\"Delay\",\"VST\",\"On\"\r\n\"Echo\",\"VST\",\"On\"\r\n");
    EXPECT_EQ(getSetting(application, setting::kLastSearch), "11-15-2025 03:10:22");
    ASSERT_TRUE(Log().starts_with(firstLog)) << "entries stand in the order of their writing";
    EXPECT_TRUE(Log().substr(firstLog.size()).starts_with("Date: 03:10:22 15/11/2025 "));
}

TEST_F(SearchFaultTest, ATimeThatItsFormHasNoRoomForIsLeftOutAndNothingElse) {
    AddProject("a.cpr", "Delay");
    WriteSetting(application, setting::kLastSearch, "before");
    clock.now.tm_year = 10000 - 1900;
    EXPECT_EQ(Search().outcome, SearchOutcome::Written);
    EXPECT_EQ(folder.Read("resultfiles/tln.csv"), "\"Delay\",\"VST\",\"On\"\r\n");
    EXPECT_EQ(getSetting(application, setting::kLastSearch), "");
    EXPECT_TRUE(logged.empty());
}

TEST_F(SearchFaultTest, AFileInTheResultFoldersPlaceStaysAndTheFailureIsShown) {
    AddProject("a.cpr", "Delay");
    std::filesystem::remove(folder.Path("resultfiles"));
    folder.Write("resultfiles", "a file");
    EXPECT_EQ(Search().outcome, SearchOutcome::Failed);
    EXPECT_EQ(window.MessageTexts().back(), NotCreatedMessage());
    EXPECT_EQ(logged, Texts{"CreateResultFiles 76"});
    EXPECT_EQ(folder.Read("resultfiles"), "a file");
}

TEST_F(SearchFaultTest, ANameOf10MegabytesIsWholeInEveryResultFile) {
    std::string name;
    name.resize(10'000'000, 'n');
    AddProject("a.cpr", name);
    EXPECT_EQ(Search().outcome, SearchOutcome::Written);
    const std::string start = "\"" + folder.Path("songs/a.cpr") + "\",\"";
    const std::string full = start + name + "\",\"VST    \",\"On\"\r\n";
    // Not compared by EXPECT_EQ, which would print them.
    EXPECT_TRUE(folder.Read("resultfiles/results.csv") == full);
    EXPECT_TRUE(folder.Read("resultfiles/fln.csv") == full);
    EXPECT_TRUE(folder.Read("resultfiles/tln.csv") == "\"" + name + "\",\"VST\",\"On\"\r\n");
}

}  // namespace
}  // namespace marlo
