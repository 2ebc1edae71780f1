// Result files on file systems that do not offer everything.

#include <cerrno>
#include <cstdlib>
#include <functional>
#include <string>
#include <sys/syscall.h>

#include <gtest/gtest.h>

#include "core/Files.h"
#include "core/RunTimeError.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/FailureOf.h"
#include "tests/support/linux/RefusedCall.h"

namespace marlo {
namespace {

constexpr const char* kResults = "\\resultfiles\\results.csv";

class WeakFileSystemTest : public test::ApplicationTest {
  protected:
    void SetUp() override {
        if (!test::CanRefuseCalls())
            GTEST_SKIP() << test::kNoRefusedCalls;
        folder.Write("resultfiles/results.csv", "old");
    }

    /// Runs `body` in a process of its own, in which a call of the system fails.
    static void RunRefusing(long call, int error, const std::function<void()>& body) {
        const auto run = [&] {
            test::RefuseCall(call, error);
            body();
            std::exit(HasFailure() ? 1 : 0);
        };
        EXPECT_EXIT(run(), testing::ExitedWithCode(0), "") << error;
    }

    void Replace() {
        StagedFile file(application, window, kResults);
        ASSERT_TRUE(file.Create());
        file.Lines().WriteLine("new");
        EXPECT_TRUE(file.MoveIntoPlace());
    }

    void ExpectResults(const std::string& bytes) const {
        EXPECT_EQ(folder.Read("resultfiles/results.csv"), bytes);
        EXPECT_FALSE(folder.Exists("resultfiles/results.csv.new"));
    }
};

TEST_F(WeakFileSystemTest, WithoutLocksAResultFileIsReplacedAllTheSame) {
    for (const int error : {ENOLCK, EOPNOTSUPP, ENOSYS}) {
        folder.Write("resultfiles/results.csv", "old");
        RunRefusing(SYS_flock, error, [this] { Replace(); });
        ExpectResults("new\r\n");
    }
}

TEST_F(WeakFileSystemTest, WithoutFlushingAResultFileIsReplacedAllTheSame) {
    for (const int error : {EINVAL, EOPNOTSUPP, ENOSYS}) {
        folder.Write("resultfiles/results.csv", "old");
        RunRefusing(SYS_fsync, error, [this] { Replace(); });
        ExpectResults("new\r\n");
    }
}

TEST_F(WeakFileSystemTest, AFlushThatFailsOtherwiseLeavesTheOldFileAlone) {
    RunRefusing(SYS_fsync, EIO, [this] {
        EXPECT_EQ(test::FailureOf([this] { Replace(); }), ErrorNumber::DeviceIo);
    });
    ExpectResults("old");
}

TEST_F(WeakFileSystemTest, ALockThatFailsOtherwiseLeavesTheOldFileAlone) {
    RunRefusing(SYS_flock, EIO, [this] {
        EXPECT_EQ(test::FailureOf([this] { Replace(); }), ErrorNumber::DeviceIo);
    });
    ExpectResults("old");
}

TEST_F(WeakFileSystemTest, ALockThatFailsLeavesTheFileThatAnotherProgramIsWriting) {
    StagedFile first(application, window, kResults);
    ASSERT_TRUE(first.Create());
    first.Lines().WriteLine("first");
    RunRefusing(SYS_flock, EIO, [this] {
        EXPECT_EQ(test::FailureOf([this] { Replace(); }), ErrorNumber::DeviceIo);
    });
    EXPECT_TRUE(first.MoveIntoPlace());
    ExpectResults("first\r\n");
}

}  // namespace
}  // namespace marlo
