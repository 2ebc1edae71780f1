#include "tests/support/TempFolder.h"

#include <chrono>
#include <fstream>
#include <iterator>
#include <random>

#include <gtest/gtest.h>

namespace marlo::test {

TempFolder::TempFolder() {
    const auto all = std::filesystem::canonical(std::filesystem::temp_directory_path());
    std::random_device random;
    do
        path_ = all / ("marlo-test-" + std::to_string(random()));
    while (!std::filesystem::create_directory(path_));
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string TempFolder::Path(const std::string& name) const {
    std::filesystem::path path = name.empty() ? path_ : path_ / name;
    return path.make_preferred().string();
}

std::string TempFolder::Write(const std::string& name, std::string_view bytes) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    std::ofstream file(path_ / name, std::ios::binary);
    file << bytes;
    EXPECT_TRUE(file.flush().good()) << "cannot write " << name;
    return Path(name);
}

std::string TempFolder::MakeFolder(const std::string& name) const {
    std::filesystem::create_directories(path_ / name);
    return Path(name);
}

std::string TempFolder::Read(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    EXPECT_TRUE(file.good()) << "cannot read " << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

void TempFolder::SetLastChange(const std::string& name, std::time_t moment) const {
    std::filesystem::last_write_time(
        path_ / name,
        std::chrono::file_clock::from_sys(std::chrono::system_clock::from_time_t(moment)));
}

bool TempFolder::Exists(const std::string& name) const {
    return std::filesystem::exists(path_ / name);
}

}  // namespace marlo::test
