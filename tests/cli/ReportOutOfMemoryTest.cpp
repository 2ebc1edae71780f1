// The report command with each of its allocations failing in turn.

#include <cstddef>
#include <new>

#include <gtest/gtest.h>

#include "app/cli/Commands.h"
#include "reports/PluginReports.h"
#include "reports/ReportView.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/FailingAllocation.h"

namespace marlo::cli {
namespace {

class ReportCommandOutOfMemoryTest : public test::ApplicationTest {};

TEST_F(ReportCommandOutOfMemoryTest, NothingButMemoryIsEverMissing) {
    folder.Write("resultfiles/installedplugins.csv", "\"VST\",\"Echo\",\"/vst/Echo.dll\"\r\n");
    const Environment environment{folder.Path(), clock, desktop, registry};
    std::size_t failures = 0;
    bool isDone = false;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    for (std::size_t number = 1; !isDone; ++number) {
        const test::FailingNthAllocation failing(number);
        try {
            RunReport(environment, {.kind = ReportKind::All, .format = ListFormat::Csv});
        } catch (const std::bad_alloc&) {
            ++failures;  // the program would say so
        } catch (...) {
            ADD_FAILURE() << "at allocation " << number;
        }
        isDone = !test::FailingNthAllocation::HasFailed();
    }
    testing::internal::GetCapturedStdout();
    testing::internal::GetCapturedStderr();
    EXPECT_GT(failures, 0U);
}

}  // namespace
}  // namespace marlo::cli
