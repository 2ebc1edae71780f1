#include <string>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "platform/File.h"
#include "tests/support/TempFolder.h"

namespace marlo::platform {
namespace {

TEST(SpecialFileTest, PipesAndDevicesAreRefused) {
    const test::TempFolder folder;
    const std::string pipe = folder.Path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& path : {pipe, std::string("/dev/zero")}) {
        std::error_code error;
        File::OpenForReading(path, error);
        EXPECT_EQ(error, std::errc::invalid_seek) << path;
    }
}

}  // namespace
}  // namespace marlo::platform
