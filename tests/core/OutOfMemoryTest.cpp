// Routines with each of their allocations failing in turn.

#include <cstddef>
#include <filesystem>
#include <functional>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/ErrorLog.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/FailingAllocation.h"
#include "tests/support/HeldFiles.h"

namespace marlo {
namespace {

using test::Failing;

constexpr const char* kResults = "\\resultfiles\\results.csv";
constexpr const char* kLongText = "a text that is too long to be kept without an allocation";

class CoreOutOfMemoryTest : public test::ApplicationTest {
  protected:
    /// The error log, which is deleted.
    std::string TakeLog() const {
        std::string log = Log();
        std::filesystem::remove(folder.Path("resultfiles/errorlog.txt"));
        return log;
    }
};

TEST_F(CoreOutOfMemoryTest, AFailureThatCannotBeLoggedWholeIsNotLoggedAndEndsNothing) {
    const auto procedure = [] { return std::string(kLongText); };
    const auto line = [](ErrorNumber number, const char* description) {
        return LogLine(kLongText, static_cast<int>(number), description);
    };
    const std::vector<std::function<void()>> bodies = {
        [] { throw RunTimeError(ErrorNumber::KeyNotUnique); },
        [] { throw std::runtime_error(kLongText); }, [] { throw std::string(kLongText); }};
    const std::vector<std::string> lines = {
        line(ErrorNumber::KeyNotUnique, DescriptionOf(ErrorNumber::KeyNotUnique)),
        line(ErrorNumber::InvalidProcedureCall, kLongText),
        line(ErrorNumber::InvalidProcedureCall, "Invalid procedure call")};
    const std::string noMemory = line(ErrorNumber::OutOfMemory, "Out of memory");
    bool isDone = true;
    for (const Failing failing : {Failing::One, Failing::AllFromThereOn})
        for (std::size_t i = 0; i < bodies.size(); ++i) {
            const std::size_t failures = test::FailEach(
                failing, [&] { isDone = RunGuarded(application, procedure, bodies[i]); },
                [&] {
                    EXPECT_FALSE(isDone);
                    const std::string log = TakeLog();
                    EXPECT_TRUE(log.empty() || log == lines[i] || log == noMemory) << log;
                });
            EXPECT_GT(failures, 3U);
            EXPECT_EQ(TakeLog(), lines[i]) << "with enough memory";
        }
}

TEST_F(CoreOutOfMemoryTest, OneAllocationThatFailsCostsTheListenerOrTheLogAtMost) {
    bool isTold = false;
    application.onErrorLogged = [&](const ErrorEntry& /*entry*/) { isTold = true; };
    const std::size_t failures = test::FailEach(
        Failing::One,
        [&] {
            isTold = false;
            RunGuarded(application, kLongText, [] {
                const std::string text(kLongText);
                throw RunTimeError(ErrorNumber::KeyNotUnique);
            });
        },
        [&] { EXPECT_TRUE(!TakeLog().empty() || isTold); });
    EXPECT_GT(failures, 3U);
}

TEST_F(CoreOutOfMemoryTest, MemoryThatRanOutOnceIsLogged) {
    const auto useMemory = [] { const std::vector<char> memory(1000); };
    const std::size_t failures = test::FailEach(
        Failing::One, [&] { RunGuarded(application, "p", useMemory); },
        [&] { EXPECT_EQ(TakeLog(), LogLine("p", 7, "Out of memory")); });
    EXPECT_EQ(failures, 1U);
}

TEST_F(CoreOutOfMemoryTest, AFileInUseIsAskedAboutWithoutAFailure) {
    if (!test::HeldFiles::ArePossible())
        GTEST_SKIP() << test::kNoHeldFiles;
    const std::string path = folder.Write("resultfiles/results.csv", "old");
    const test::HeldFiles held({path});
    MessageAnswer answer = MessageAnswer::None;
    for (const Failing failing : {Failing::One, Failing::AllFromThereOn}) {
        window.answers = {MessageAnswer::Cancel};
        const std::size_t failures = test::FailEach(
            failing,
            [&] {
                answer = MessageAnswer::None;
                AskCloseFileInUse(application, window, kResults, answer);
            },
            [&] {
                EXPECT_NE(answer, MessageAnswer::Ok);
                window.answers = {MessageAnswer::Cancel};
            });
        EXPECT_GT(failures, 3U);
        EXPECT_EQ(answer, MessageAnswer::Cancel) << "with enough memory";
    }
}

TEST_F(CoreOutOfMemoryTest, AStagedFileThatRunsOutOfMemoryLeavesNothingBehind) {
    std::optional<StagedFile> file;
    for (const Failing failing : {Failing::One, Failing::AllFromThereOn}) {
        const std::size_t failures = test::FailEach(
            failing,
            [&] {
                RunGuarded(application, "p", [&] {
                    file.emplace(application, window, kResults);
                    file->Create();
                    file->Lines().WriteLine(kLongText);
                });
            },
            [&] {
                file.reset();
                EXPECT_FALSE(folder.Exists("resultfiles/results.csv.new"));
            });
        EXPECT_GT(failures, 2U);
        file.reset();
    }
}

TEST_F(CoreOutOfMemoryTest, AStagedFileThatCannotEvenBeDeletedEndsNothing) {
    const std::size_t failures = test::FailEach(Failing::AllFromThereOn, [&] {
        RunGuarded(application, "p", [&] {
            StagedFile file(application, window, kResults);
            file.Create();
        });
    });
    EXPECT_GT(failures, 2U);
}

}  // namespace
}  // namespace marlo
