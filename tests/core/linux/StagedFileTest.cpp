#include <filesystem>

#include <gtest/gtest.h>

#include "core/Files.h"
#include "core/RunTimeError.h"
#include "tests/support/ApplicationTest.h"

namespace marlo {
namespace {

class LinuxStagedFileTest : public test::ApplicationTest {};

TEST_F(LinuxStagedFileTest, OnlyWhatIsDeniedIsAskedAbout) {
    folder.Write("resultfiles/results.csv", "old");
    StagedFile file(application, window, "\\resultfiles\\results.csv");
    ASSERT_TRUE(file.Create());
    std::filesystem::remove(folder.Path("resultfiles/results.csv.new"));
    window.answers = {MessageAnswer::Cancel};
    ErrorNumber failure = ErrorNumber::None;
    try {
        file.MoveIntoPlace();
    } catch (const RunTimeError& gone) {
        failure = gone.Number();
    }
    EXPECT_EQ(failure, ErrorNumber::PathNotFound);
    EXPECT_TRUE(window.events.empty());
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "old");
}

}  // namespace
}  // namespace marlo
