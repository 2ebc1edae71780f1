#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "core/Files.h"
#include "core/RunTimeError.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/FailureOf.h"
#include "tests/support/HeldFiles.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using std::filesystem::permissions;
using std::filesystem::perms;
using test::FailureOf;

constexpr const char* kResults = "\\resultfiles\\results.csv";

class FilesTest : public test::ApplicationTest {
  protected:
    void SetResultFolder(perms mode) const {
        permissions(folder.Path(), perms{0755});
        permissions(folder.Path("resultfiles"), mode);
    }

    std::string ResultsPath() const { return folder.Path("resultfiles/results.csv"); }

    std::string Question() const {
        return "The file " + ResultsPath() +
               " is being used by another program. Close that program and click Ok to continue";
    }
};

/// The old file is held by another program.
class HeldFileTest : public FilesTest {
  protected:
    void SetUp() override {
        if (!test::HeldFiles::ArePossible())
            GTEST_SKIP() << test::kNoHeldFiles;
        folder.Write("resultfiles/results.csv", "old");
        held.emplace(std::vector{ResultsPath()});
    }

    std::optional<test::HeldFiles> held;
};

TEST_F(FilesTest, FileExistsTellsFilesFromFoldersAndNothing) {
    EXPECT_TRUE(FileExists(application, folder.Write("a.csv", "")));
    EXPECT_FALSE(FileExists(application, folder.Path("b.csv")));
    EXPECT_FALSE(FileExists(application, folder.Path("a.csv/b.csv")));
    EXPECT_FALSE(FileExists(application, folder.Path("resultfiles")));
    EXPECT_FALSE(FileExists(application, ""));
    EXPECT_EQ(Log(), "");
}

TEST_F(FilesTest, FileExistsLogsAPathThatCannotBeAskedAbout) {
    const std::string path("a\0b", 3);
    EXPECT_FALSE(FileExists(application, path));
    EXPECT_EQ(Log(), LogLine("FileExists: " + path, 52, "Bad file name or number"));
}

TEST_F(FilesTest, AskCloseFileInUseOnAMissingFileShowsNothingAndLeavesTheAnswer) {
    MessageAnswer answer = MessageAnswer::No;
    AskCloseFileInUse(application, window, kResults, answer);
    EXPECT_EQ(answer, MessageAnswer::No);
    EXPECT_TRUE(window.events.empty());
}

TEST_F(FilesTest, AskCloseFileInUseDeletesAFreeFileWithoutAWord) {
    folder.Write("resultfiles/results.csv", "old");
    MessageAnswer answer = MessageAnswer::None;
    AskCloseFileInUse(application, window, kResults, answer);
    EXPECT_EQ(answer, MessageAnswer::None);
    EXPECT_FALSE(folder.Exists("resultfiles/results.csv"));
    EXPECT_TRUE(window.events.empty());
}

TEST_F(FilesTest, AskCloseFileInUseLeavesAFolderOfThatNameAlone) {
    folder.MakeFolder("resultfiles/results.csv");
    MessageAnswer answer = MessageAnswer::None;
    AskCloseFileInUse(application, window, kResults, answer);
    EXPECT_TRUE(folder.Exists("resultfiles/results.csv"));
    EXPECT_TRUE(window.events.empty());
}

TEST_F(HeldFileTest, AskCloseFileInUseStopsAtCancel) {
    window.answers = {MessageAnswer::Ok, MessageAnswer::Cancel};
    MessageAnswer answer = MessageAnswer::None;
    AskCloseFileInUse(application, window, kResults, answer);
    EXPECT_EQ(answer, MessageAnswer::Cancel);
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "old");
    EXPECT_EQ(window.MessageTexts(), (std::vector{Question(), Question()}));
    EXPECT_EQ(window.messages[0].buttons, MessageButtons::OkCancel);
    EXPECT_EQ(window.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(window.messages[0].title, "");
    EXPECT_EQ(Log(), "");
}

TEST_F(HeldFileTest, AskCloseFileInUseTakesAQuestionThatFailsForCancel) {
    window.failing = {"Message: " + Question()};
    MessageAnswer answer = MessageAnswer::None;
    AskCloseFileInUse(application, window, kResults, answer);
    EXPECT_EQ(answer, MessageAnswer::Cancel);
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "old");
    EXPECT_EQ(window.events.size(), 1U);
    EXPECT_EQ(Log(), "");
}

TEST_F(HeldFileTest, AskCloseFileInUseDeletesOnceTheFileIsFree) {
    window.onMessage = [&](const Message&) { held->Free(ResultsPath()); };
    MessageAnswer answer = MessageAnswer::None;
    { AskCloseFileInUse(application, window, kResults, answer); }
    EXPECT_EQ(answer, MessageAnswer::Ok);
    EXPECT_FALSE(folder.Exists("resultfiles/results.csv"));
    EXPECT_EQ(window.messages.size(), 1U);
}

TEST_F(FilesTest, AStagedFileIsNotSeenBeforeItIsInPlace) {
    folder.Write("resultfiles/results.csv", "old");
    StagedFile file(application, window, kResults);
    EXPECT_TRUE(file.Create());
    file.Lines().WriteLine("new");
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "old");
    EXPECT_TRUE(file.MoveIntoPlace());
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "new\r\n");
    EXPECT_TRUE(window.events.empty());
}

TEST_F(FilesTest, AStagedFileThatIsGivenUpLeavesNothingBehind) {
    folder.Write("resultfiles/results.csv", "old");
    {
        StagedFile file(application, window, kResults);
        EXPECT_TRUE(file.Create());
        file.Lines().WriteLine("new");
    }
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "old");
    EXPECT_FALSE(folder.Exists("resultfiles/results.csv.new"));
}

TEST_F(FilesTest, WhatAKilledRunLeftIsOverwritten) {
    folder.Write("resultfiles/results.csv.new", std::string(1000, 'x'));
    StagedFile file(application, window, kResults);
    EXPECT_TRUE(file.Create());
    file.Lines().WriteLine("new");
    EXPECT_TRUE(file.MoveIntoPlace());
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "new\r\n");
}

TEST_F(FilesTest, ALinkInTheNewVersionsPlaceIsNotFollowed) {
    folder.Write("precious", "precious");
    if (!test::CanTellLinks() ||
        !test::MakeLink("../precious", folder.Path("resultfiles/results.csv.new")))
        GTEST_SKIP() << test::kNoLinks;
    StagedFile file(application, window, kResults);
    EXPECT_EQ(FailureOf([&] { file.Create(); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(folder.Read("precious"), "precious");
}

TEST_F(FilesTest, WhileAnotherProgramStagesTheFileTheUserIsAsked) {
    folder.Write("resultfiles/results.csv", "old");
    StagedFile first(application, window, kResults);
    EXPECT_TRUE(first.Create());
    first.Lines().WriteLine("first");
    window.answers = {MessageAnswer::Ok, MessageAnswer::Cancel};
    {
        StagedFile second(application, window, kResults);
        EXPECT_FALSE(second.Create());
    }
    EXPECT_EQ(window.MessageTexts(), (std::vector{Question(), Question()}));
    EXPECT_TRUE(first.MoveIntoPlace());
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "first\r\n");
}

TEST_F(FilesTest, WithoutAnOldFileToAskAboutBeingDeniedIsAFailure) {
    StagedFile first(application, window, kResults);
    EXPECT_TRUE(first.Create());
    StagedFile second(application, window, kResults);
    EXPECT_EQ(FailureOf([&] { second.Create(); }), ErrorNumber::PermissionDenied);
    EXPECT_TRUE(window.events.empty());
}

TEST_F(FilesTest, AStagedFileLargerThanItsBufferIsWhole) {
    std::string expected;
    StagedFile file(application, window, kResults);
    EXPECT_TRUE(file.Create());
    for (int i = 0; i < 50000; ++i) {
        file.Lines().WriteLine("line " + std::to_string(i));
        expected += "line " + std::to_string(i) + "\r\n";
    }
    EXPECT_TRUE(file.MoveIntoPlace());
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), expected);
}

TEST_F(FilesTest, AFolderInTheFilesPlaceIsKnownAtTheStart) {
    folder.MakeFolder("resultfiles/results.csv");
    StagedFile file(application, window, kResults);
    EXPECT_EQ(FailureOf([&] { file.Create(); }), ErrorNumber::PathFileAccess);
    EXPECT_FALSE(folder.Exists("resultfiles/results.csv.new"));
    EXPECT_TRUE(window.events.empty());
}

TEST_F(FilesTest, AFolderInTheFilesPlaceIsAFailureWithoutAQuestion) {
    StagedFile file(application, window, kResults);
    EXPECT_TRUE(file.Create());
    folder.MakeFolder("resultfiles/results.csv");
    EXPECT_EQ(FailureOf([&] { file.MoveIntoPlace(); }), ErrorNumber::PathFileAccess);
    EXPECT_TRUE(window.events.empty());
}

TEST_F(FilesTest, WithoutTheResultFolderThePathIsNotFound) {
    std::filesystem::remove_all(folder.Path("resultfiles"));
    StagedFile file(application, window, kResults);
    EXPECT_EQ(FailureOf([&] { file.Create(); }), ErrorNumber::PathNotFound);
}

TEST_F(FilesTest, InAReadOnlyFolderTheUserIsAskedUntilItIsWritable) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    folder.Write("resultfiles/results.csv", "old");
    SetResultFolder(perms{0555});
    std::optional<test::OrdinaryUser> user(std::in_place);
    window.onMessage = [&](const Message&) {
        user.reset();
        SetResultFolder(perms{0777});
        user.emplace();
    };
    StagedFile file(application, window, kResults);
    EXPECT_TRUE(file.Create());
    file.Lines().WriteLine("new");
    EXPECT_TRUE(file.MoveIntoPlace());
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "new\r\n");
    EXPECT_EQ(window.MessageTexts(), std::vector{Question()});
}

TEST_F(FilesTest, CancelInAReadOnlyFolderLeavesTheOldFile) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    folder.Write("resultfiles/results.csv", "old");
    SetResultFolder(perms{0555});
    const test::OrdinaryUser user;
    window.answers = {MessageAnswer::Cancel};
    StagedFile file(application, window, kResults);
    EXPECT_FALSE(file.Create());
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "old");
}

TEST_F(HeldFileTest, AStagedFileLeavesTheOldOneWhenTheUserCancels) {
    window.answers = {MessageAnswer::Cancel};
    {
        StagedFile file(application, window, kResults);
        EXPECT_TRUE(file.Create());
        file.Lines().WriteLine("new");
        EXPECT_FALSE(file.MoveIntoPlace());
    }
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "old");
    EXPECT_FALSE(folder.Exists("resultfiles/results.csv.new"));
    EXPECT_EQ(window.MessageTexts(), std::vector{Question()});
}

TEST_F(HeldFileTest, AStagedFilesQuestionThatFailsIsAFailureAndNoCancel) {
    window.failing = {"Message: " + Question()};
    {
        StagedFile file(application, window, kResults);
        EXPECT_TRUE(file.Create());
        EXPECT_THROW(file.MoveIntoPlace(), std::runtime_error);
    }
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "old");
    EXPECT_FALSE(folder.Exists("resultfiles/results.csv.new"));
}

TEST_F(HeldFileTest, AStagedFileTakesItsPlaceOnceTheOldOneIsFree) {
    window.onMessage = [&](const Message&) { held->Free(ResultsPath()); };
    {
        StagedFile file(application, window, kResults);
        EXPECT_TRUE(file.Create());
        file.Lines().WriteLine("new");
        EXPECT_TRUE(file.MoveIntoPlace());
    }
    EXPECT_EQ(folder.Read("resultfiles/results.csv"), "new\r\n");
}

}  // namespace
}  // namespace marlo
