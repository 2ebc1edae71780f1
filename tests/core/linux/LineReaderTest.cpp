#include <string_view>

#include <gtest/gtest.h>

#include "core/LineReader.h"
#include "core/RunTimeError.h"

namespace marlo {
namespace {

TEST(LinuxLineReaderTest, AFileThatCannotBeReadIsAFailureEachTime) {
    // The start of a process's memory cannot be read, though the file can be opened.
    LineReader reader("/proc/self/mem");
    for (int i = 0; i < 2; ++i) {
        std::string_view line;
        EXPECT_THROW(reader.Next(line), RunTimeError);
    }
}

}  // namespace
}  // namespace marlo
