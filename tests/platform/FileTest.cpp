#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/File.h"
#include "tests/support/TempFolder.h"

namespace marlo::platform {
namespace {

class FileTest : public testing::Test {
  protected:
    test::TempFolder folder;
    std::error_code error;
};

TEST_F(FileTest, ReadingGoesUpToTheEndOfTheFile) {
    const auto file = File::OpenForReading(folder.Write("a", "hello"), error);
    ASSERT_FALSE(error);
    std::array<unsigned char, 10> buffer{};
    EXPECT_EQ(file.ReadAt(1, buffer, error), 4U);
    EXPECT_FALSE(error);
    EXPECT_EQ(std::string(buffer.begin(), buffer.begin() + 4), "ello");
    EXPECT_EQ(file.ReadAt(5, buffer, error), 0U);
    EXPECT_EQ(file.ReadAt(1000, buffer, error), 0U);
    EXPECT_FALSE(error);
}

TEST_F(FileTest, WritingPastTheEndLeavesZeros) {
    auto file = File::OpenForUpdating(folder.Path("a"), error);
    file.WriteAt(3, "x", error);
    EXPECT_FALSE(error);
    EXPECT_EQ(folder.Read("a"), std::string("\0\0\0x", 4));
}

TEST_F(FileTest, UpdatingKeepsWhatIsThere) {
    auto file = File::OpenForUpdating(folder.Write("a", "hello"), error);
    file.WriteAt(1, "u", error);
    EXPECT_EQ(folder.Read("a"), "hullo");
}

TEST_F(FileTest, AppendingGoesToTheEndWhoeverWroteSince) {
    auto first = File::OpenForAppending(folder.Path("a"), error);
    auto second = File::OpenForAppending(folder.Path("a"), error);
    first.Write("1", error);
    second.Write("2", error);
    first.Write("3", error);
    EXPECT_EQ(folder.Read("a"), "123");
}

TEST_F(FileTest, WhatIsNoRegularFileIsRefused) {
    File::OpenForReading(folder.Path(), error);
    EXPECT_EQ(error, std::errc::is_a_directory);
    File::OpenForReading(std::string("a\0b", 3), error);
    EXPECT_EQ(error, std::errc::invalid_argument);
    File::OpenForReading(folder.Path("gone"), error);
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

TEST_F(FileTest, AnExclusiveFileIsEmptyAndNobodyElses) {
    const std::string path = folder.Write("a", "left over");
    const auto first = File::OpenExclusively(path, error);
    EXPECT_FALSE(error);
    EXPECT_EQ(folder.Read("a"), "");
    File::OpenExclusively(path, error);
    EXPECT_EQ(error, std::errc::device_or_resource_busy);
}

TEST_F(FileTest, AnExclusiveFileIsFreeOnceItIsClosed) {
    const std::string path = folder.Path("a");
    { const auto first = File::OpenExclusively(path, error); }
    File::OpenExclusively(path, error);
    EXPECT_FALSE(error);
}

TEST_F(FileTest, ANewFileIsNoneThatIsThereAlready) {
    const std::string old = folder.Write("old", "hello");
    for (const std::string& path : {old, folder.MakeFolder("folder")}) {
        File::CreateNew(path, error);
        EXPECT_EQ(error, std::errc::file_exists) << path;
    }
    EXPECT_EQ(folder.Read("old"), "hello");
    auto file = File::CreateNew(folder.Path("new"), error);
    file.Write("x", error);
    EXPECT_FALSE(error);
    EXPECT_EQ(folder.Read("new"), "x");
}

TEST_F(FileTest, MovingAFileMovesItsHandle) {
    auto first = File::OpenForAppending(folder.Path("a"), error);
    File second;
    second = std::move(first);
    second.Write("x", error);
    EXPECT_FALSE(error);
    EXPECT_EQ(folder.Read("a"), "x");
}

TEST_F(FileTest, AnOpenFileTellsItsSize) {
    auto file = File::OpenForUpdating(folder.Path("file"), error);
    EXPECT_EQ(file.Size(error), 0U);
    file.WriteAt(100, "abc", error);
    EXPECT_EQ(file.Size(error), 103U);
    EXPECT_FALSE(error);
}

}  // namespace
}  // namespace marlo::platform
