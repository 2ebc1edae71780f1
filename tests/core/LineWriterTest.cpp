#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "core/LineWriter.h"
#include "core/RunTimeError.h"
#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

namespace marlo {
namespace {

class LineWriterTest : public testing::Test {
  protected:
    static LineWriter Open(const std::string& path) {
        std::error_code error;
        auto file = platform::File::OpenForAppending(path, error);
        EXPECT_FALSE(error);
        return LineWriter(std::move(file));
    }

    test::TempFolder folder;
};

TEST_F(LineWriterTest, LinesEndWithCrLfAndAreCounted) {
    auto writer = Open(folder.Path("file"));
    writer.WriteLine("a");
    writer.WriteLine("");
    EXPECT_EQ(writer.LineCount(), 2U);
    writer.Flush();
    EXPECT_EQ(folder.Read("file"), "a\r\n\r\n");
}

TEST_F(LineWriterTest, WhatWasWrittenIsThereWhenTheWriterEnds) {
    {
        auto writer = Open(folder.Path("file"));
        writer.WriteLine("a");
        EXPECT_EQ(folder.Read("file"), "");
    }
    EXPECT_EQ(folder.Read("file"), "a\r\n");
}

TEST_F(LineWriterTest, ManyLinesGoOutBeforeTheEnd) {
    auto writer = Open(folder.Path("file"));
    for (int i = 0; i < 1000; ++i)
        writer.WriteLine(std::string(1000, 'x'));
    EXPECT_GT(folder.Read("file").size(), 500'000U);
}

TEST_F(LineWriterTest, AfterAFailureNothingMoreIsWrittenAndEveryFlushFails) {
    std::error_code error;
    LineWriter writer(platform::File::OpenForReading(folder.Write("file", ""), error));
    writer.WriteLine("a");
    EXPECT_THROW(writer.Flush(), RunTimeError);
    EXPECT_THROW(writer.Flush(), RunTimeError);
    EXPECT_THROW(writer.FlushToDisk(), RunTimeError);
}

TEST_F(LineWriterTest, TheFileOfAFullDiskHasTheLinesFromTheFirstOnOnly) {
    if (!test::FileSizeLimit::IsPossible())
        GTEST_SKIP() << test::kNoFileSizeLimit;
    {
        std::optional<test::FileSizeLimit> full(5);
        auto writer = Open(folder.Path("file"));
        writer.WriteLine("one");
        writer.WriteLine("two");
        EXPECT_THROW(writer.Flush(), RunTimeError);
        full.reset();
        writer.WriteLine("three");
    }
    EXPECT_EQ(folder.Read("file"), "one\r\n");
}

}  // namespace
}  // namespace marlo
