#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "core/LineReader.h"
#include "core/RunTimeError.h"
#include "tests/support/FailureOf.h"
#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

namespace marlo {
namespace {

using Lines = std::vector<std::string>;

class LineReaderTest : public testing::Test {
  protected:
    Lines Read(const std::string& bytes) const {
        LineReader reader(folder.Write("file", bytes));
        Lines lines;
        for (std::string_view line; reader.Next(line);)
            lines.emplace_back(line);
        return lines;
    }

    static ErrorNumber FailureToOpen(const std::string& path) {
        return test::FailureOf([&] { const LineReader reader(path); });
    }

    test::TempFolder folder;
};

TEST_F(LineReaderTest, LinesEndWithCrLfOrLf) {
    EXPECT_EQ(Read("a\r\nb\nc\r\n"), (Lines{"a", "b", "c"}));
}

TEST_F(LineReaderTest, TheLastLineNeedsNoEnd) {
    EXPECT_EQ(Read("a\r\nb"), (Lines{"a", "b"}));
    EXPECT_EQ(Read("a\r"), (Lines{"a\r"}));
}

TEST_F(LineReaderTest, EmptyLinesCountAndAnEmptyFileHasNone) {
    EXPECT_EQ(Read("\r\n\n"), (Lines{"", ""}));
    EXPECT_EQ(Read(""), Lines{});
}

TEST_F(LineReaderTest, LinesMayBeLongerThanWhatIsReadAtOnce) {
    const std::string a(200'000, 'a');
    const std::string b(65'535, 'b');
    EXPECT_EQ(Read(a + "\r\n" + b + "\r\nc\r\n" + a), (Lines{a, b, "c", a}));
}

TEST_F(LineReaderTest, ALineWithoutEndDoesNotTakeAllMemory) {
    const std::string path = folder.Write("file", "first\n");
    std::filesystem::resize_file(path, std::uintmax_t{2} << 30U);
    LineReader reader(path);
    std::string_view line;
    EXPECT_TRUE(reader.Next(line));
    EXPECT_EQ(line, "first");
    ErrorNumber failure = ErrorNumber::None;
    const std::size_t taken = test::MemoryTakenBy([&] {
        try {
            reader.Next(line);
        } catch (const RunTimeError& tooLong) {
            failure = tooLong.Number();
        }
    });
    EXPECT_EQ(failure, ErrorNumber::OutOfMemory);
    // AddressSanitizer keeps for a while what has been given back.
    EXPECT_LT(taken, (test::kIsSanitized ? 6 : 3) * kMaxLineLength);
}

TEST_F(LineReaderTest, AMissingFileOrAFolderIsAFailure) {
    EXPECT_EQ(FailureToOpen(folder.Path("gone")), ErrorNumber::FileNotFound);
    EXPECT_EQ(FailureToOpen(folder.Path()), ErrorNumber::PathFileAccess);
}

}  // namespace
}  // namespace marlo
