#include "tests/support/windows/FolderTimes.h"

#include <filesystem>
#include <system_error>

#include "tests/support/TempFolder.h"

namespace marlo::test {

void SettleTimes(const std::string& path) {
    std::filesystem::path folder = PathOf(path);
    for (; folder != folder.parent_path(); folder = folder.parent_path()) {
        std::error_code ignored;
        std::filesystem::directory_iterator(folder, ignored);
    }
}

}  // namespace marlo::test
