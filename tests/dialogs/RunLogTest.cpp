#include <gtest/gtest.h>

#include "core/Settings.h"
#include "dialogs/RunLog.h"
#include "tests/support/ApplicationTest.h"

namespace marlo {
namespace {

class RunLogTest : public test::ApplicationTest {
  protected:
    RunLogTest() { WriteSetting(application, 1, "/songs"); }

    std::string PathWith(const std::string& includeSubfolders) {
        WriteSetting(application, 3, includeSubfolders);
        return ReadRunLog(application).searchPath;
    }
};

TEST_F(RunLogTest, TheDatesAreThoseOfTheLastRuns) {
    WriteSetting(application, 11, "11-15-2026 03:10:22");
    WriteSetting(application, 15, "11-16-2026 23:59:59");
    EXPECT_EQ(ReadRunLog(application).searchDate, "11-15-2026 03:10:22");
    EXPECT_EQ(ReadRunLog(application).inventoryDate, "11-16-2026 23:59:59");
}

TEST_F(RunLogTest, ThePathTellsWhetherSubfoldersWereIncluded) {
    EXPECT_EQ(PathWith("1"), "/songs - Including sub folders");
    EXPECT_EQ(PathWith("0"), "/songs - Excluding sub folders");
    EXPECT_EQ(PathWith(""), "/songs");
    EXPECT_EQ(PathWith("2"), "");
}

}  // namespace
}  // namespace marlo
