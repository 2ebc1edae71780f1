#include <algorithm>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "core/ErrorLog.h"
#include "core/RunTimeError.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

class ErrorLogTest : public test::ApplicationTest {};

TEST_F(ErrorLogTest, AnEntryHasTheTimeBeforeTheDateAndEndsWithCrLf) {
    WriteErrorLog(application, "CreateResultFiles", 70, "Permission denied");
    EXPECT_EQ(Log(),
              "Date: 03:10:22 15/11/2026 Procedure: CreateResultFiles Error No.: 70 "
              "Description: Permission denied\r\n");
}

TEST_F(ErrorLogTest, TwoErrorsInARowGiveTwoLinesAndNothingEarlierIsRemoved) {
    folder.Write("resultfiles/errorlog.txt", "earlier\r\n");
    WriteErrorLog(application, "first", 5, "a");
    WriteErrorLog(application, "second", 6, "b");
    EXPECT_EQ(Log(), "earlier\r\n" + LogLine("first", 5, "a") + LogLine("second", 6, "b"));
}

TEST_F(ErrorLogTest, TheFileIsWrittenToWhateverTheCaseOfItsName) {
    folder.Write("resultfiles/ErrorLog.TXT", "earlier\r\n");
    WriteErrorLog(application, "p", 5, "a");
    EXPECT_EQ(folder.Read("resultfiles/ErrorLog.TXT"), "earlier\r\n" + LogLine("p", 5, "a"));
}

TEST_F(ErrorLogTest, ADescriptionWithALineBreakSpansSeveralLines) {
    WriteErrorLog(application, "p", 1, "one\r\ntwo");
    EXPECT_EQ(Log(), LogLine("p", 1, "one\r\ntwo"));
}

TEST_F(ErrorLogTest, NumberZeroWithoutADescriptionEndsWithTheLabel) {
    WriteErrorLog(application, "GetAssociatedApp: .csv", 0, "");
    EXPECT_EQ(Log(),
              "Date: 03:10:22 15/11/2026 Procedure: GetAssociatedApp: .csv Error No.: 0 "
              "Description: \r\n");
}

TEST_F(ErrorLogTest, ANegativeNumberKeepsItsSign) {
    WriteErrorLog(application, "p", -2147483647, "d");
    EXPECT_EQ(Log(), LogLine("p", -2147483647, "d"));
}

TEST_F(ErrorLogTest, WithoutTheResultFolderTheEntryIsLostAndTheFolderNotMade) {
    std::filesystem::remove_all(folder.Path("resultfiles"));
    WriteErrorLog(application, "p", 1, "d");
    EXPECT_FALSE(folder.Exists("resultfiles"));
}

TEST_F(ErrorLogTest, AFolderInTheLogsPlaceLosesTheEntryWithoutAWord) {
    folder.MakeFolder("resultfiles/errorlog.txt");
    WriteErrorLog(application, "p", 1, "d");
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path("resultfiles/errorlog.txt")));
}

TEST_F(ErrorLogTest, TheListenerIsToldEvenWhenNothingCanBeWritten) {
    std::filesystem::remove_all(folder.Path("resultfiles"));
    ErrorEntry told;
    application.onErrorLogged = [&](const ErrorEntry& entry) { told = entry; };
    WriteErrorLog(application, "p", 1, "d");
    EXPECT_EQ(told.procedure, "p");
    EXPECT_EQ(told.number, 1);
    EXPECT_EQ(told.description, "d");
}

TEST_F(ErrorLogTest, AListenerThatFailsCostsNoLine) {
    application.onErrorLogged = [](const ErrorEntry& /*entry*/) {
        throw std::runtime_error("odd");
    };
    WriteErrorLog(application, "first", 1, "a");
    EXPECT_FALSE(
        RunGuarded(application, "second", [] { throw RunTimeError(ErrorNumber::FileNotFound); }));
    EXPECT_EQ(Log(), LogLine("first", 1, "a") + LogLine("second", 53, "File not found"));
}

TEST_F(ErrorLogTest, WhereverTheDiskIsFullTheEarlierEntriesStayAndNothingElseHappens) {
    if (!test::FileSizeLimit::IsPossible())
        GTEST_SKIP() << test::kNoFileSizeLimit;
    const std::string earlier = LogLine("earlier", 5, "a");
    const std::string later = LogLine("later", 6, "b");
    int told = 0;
    application.onErrorLogged = [&](const ErrorEntry& /*entry*/) { ++told; };
    for (std::size_t limit = 0; limit <= earlier.size() + later.size(); ++limit) {
        folder.Write("resultfiles/errorlog.txt", earlier);
        told = 0;
        {
            const test::FileSizeLimit full(limit);
            WriteErrorLog(application, "later", 6, "b");
        }
        // What there is room for is written.
        EXPECT_EQ(Log(), (earlier + later).substr(0, std::max(limit, earlier.size()))) << limit;
        EXPECT_EQ(told, 1) << limit;
    }
}

TEST_F(ErrorLogTest, AGuardedBodyThatEndsLogsNothing) {
    EXPECT_TRUE(RunGuarded(application, "p", [] {}));
    EXPECT_EQ(Log(), "");
}

TEST_F(ErrorLogTest, AGuardedFailureIsLoggedUnderTheProcedureText) {
    EXPECT_FALSE(
        RunGuarded(application, "p", [] { throw RunTimeError(ErrorNumber::FileNotFound); }));
    EXPECT_EQ(Log(), LogLine("p", 53, "File not found"));
}

TEST_F(ErrorLogTest, AProcedureTextIsMadeAfterTheFailure) {
    std::string context = "before";
    RunGuarded(
        application, [&] { return "p " + context; },
        [&] {
            context = "after";
            throw RunTimeError(ErrorNumber::TypeMismatch);
        });
    EXPECT_EQ(Log(), LogLine("p after", 13, "Type mismatch"));
}

TEST_F(ErrorLogTest, MemoryThatRanOutIsNumber7) {
    RunGuarded(application, "p", [] { throw std::bad_alloc(); });
    RunGuarded(application, "p", [] { throw std::length_error("too long"); });
    EXPECT_EQ(Log(), LogLine("p", 7, "Out of memory") + LogLine("p", 7, "Out of memory"));
}

TEST_F(ErrorLogTest, AnyOtherExceptionIsNumber5WithItsOwnText) {
    RunGuarded(application, "p", [] { throw std::runtime_error("odd"); });
    RunGuarded(application, "p", [] { throw 1; });
    EXPECT_EQ(Log(), LogLine("p", 5, "odd") + LogLine("p", 5, "Invalid procedure call"));
}

TEST_F(ErrorLogTest, AProcedureTextThatCannotBeMadeLosesTheEntryOnly) {
    const auto procedure = []() -> std::string { throw std::bad_alloc(); };
    EXPECT_FALSE(
        RunGuarded(application, procedure, [] { throw RunTimeError(ErrorNumber::FileNotFound); }));
    EXPECT_EQ(Log(), "");
}

}  // namespace
}  // namespace marlo
