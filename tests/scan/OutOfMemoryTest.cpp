#include <cstddef>
#include <new>
#include <string>

#include <gtest/gtest.h>

#include "core/Records.h"
#include "scan/ProjectPlugins.h"
#include "scan/ResultFiles.h"
#include "scan/SearchLists.h"
#include "scan/SearchRun.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/FailingAllocation.h"
#include "tests/support/PluginUse.h"
#include "tests/support/Projects.h"
#include "tools/ProjectWriter.h"

namespace marlo {
namespace {

class OutOfMemoryTest : public test::ApplicationTest {
  protected:
    SearchLists lists;
};

TEST_F(OutOfMemoryTest, AScanThatRunsOutOfMemoryKeepsWhatItHadAndLogsNumber7) {
    const std::string longName(10000, 'n');
    const std::string path =
        folder.Write("song.cpr", std::string(100, '\0') + tools::PluginBytes({.name = "Kept"}) +
                                     tools::PluginBytes({.name = longName}));
    bool completed = true;
    // The reader's blocks are larger than any record.
    {
        const test::FailingAllocation failing(
            [](std::size_t size) { return size > 10000 && size < 60000; });
        completed = GetPlugins4Project(application, lists, path);
    }
    EXPECT_FALSE(completed);
    const std::string key = "\"" + path + "\",\"Kept\",\"VST    \"";
    EXPECT_EQ(Log(), LogLine("GetPlugins4Project " + path + " " + key, 7, "Out of memory"));
    EXPECT_EQ(lists.PluginOccurrences.size(), 1U);
    EXPECT_EQ(lists.ProjectPluginKeys.UpperBound(), 1U);
}

TEST_F(OutOfMemoryTest, AKeyThatCannotBeSplitIsLoggedAndMakesTheResultFilesFail) {
    const std::string key = "\"A.cpr\",\"Delay\",\"VST    \"";
    test::AddUse(lists, key, kOn);
    bool ok = true;
    {
        const test::FailingAllocation failing(
            [](std::size_t size) { return size == 3 * sizeof(std::string); });
        ok = CreateResultFiles(application, window, lists);
    }
    EXPECT_FALSE(ok);
    EXPECT_EQ(Log(), LogLine("SplitRecord: " + key + " 3", 7, "Out of memory") +
                         LogLine("Problem writing " + key + ". See " + folder.Path() +
                                     "\\resultfiles\\errorlog.txt for details.",
                                 0, "n/a"));
    EXPECT_EQ(folder.Read("resultfiles/fln.csv"), key + ",\"On\"\r\n");
    EXPECT_EQ(folder.Read("resultfiles/tln.csv"), "");
}

TEST_F(OutOfMemoryTest, ASearchThatRunsOutOfMemoryAnywhereEndsWithItsCommandsFree) {
    for (const char* name : {"a.cpr", "b.cpr"})
        test::AddProject(folder, name, {{.name = "A plug-in with a long name"}});
    window.folder = folder.Path("songs");
    window.events.reserve(100);  // what the window writes down at the end takes no memory then
    for (const auto failing : {test::Failing::One, test::Failing::AllFromThereOn}) {
        const std::size_t failures = test::FailEach(
            failing,
            [&] {
                window.events.clear();
                window.messages.clear();
                GetPlugins4AllProjects(application, window, lists);
            },
            [&] {
                EXPECT_EQ(window.Count("ClearStatusBar"), 1U);
                EXPECT_EQ(window.Count("EnableButtons"), 1U);
                EXPECT_EQ(lists.ProjectFiles.UpperBound(), 0U);
                EXPECT_EQ(lists.PluginOccurrences.size(), 0U);
                EXPECT_EQ(lists.ProjectPluginKeys.UpperBound(), 0U);
            });
        EXPECT_GT(failures, 50U);
    }
}

TEST_F(OutOfMemoryTest, AKeyIsAddedWhollyOrNotAtAll) {
    const std::string tooLongForAnyBlock(300000, 'k');
    bool isAdded = false;
    for (std::size_t number = 1; !isAdded; ++number) {
        KeyList keys;
        StateList states;
        MergeState(keys, states, "first", kOn);
        try {
            const test::FailingNthAllocation failing(number);
            MergeState(keys, states, tooLongForAnyBlock, kOn);
            isAdded = true;
        } catch (const std::bad_alloc&) {
            EXPECT_EQ(keys.UpperBound(), 1U) << number;
            EXPECT_EQ(states.UpperBound(), 1U) << number;
            EXPECT_EQ(MergeState(keys, states, tooLongForAnyBlock, kOff).state, kOff) << number;
        }
        EXPECT_EQ(keys.UpperBound(), 2U) << number;
        EXPECT_EQ(states.UpperBound(), 2U) << number;
    }
}

}  // namespace
}  // namespace marlo
