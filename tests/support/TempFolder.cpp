#include "tests/support/TempFolder.h"

#include <chrono>
#include <fstream>
#include <random>
#include <sstream>
#include <utility>

#include <gtest/gtest.h>

#include "tests/support/System.h"

namespace marlo::test {

std::filesystem::path PathOf(const std::string& path) {
    return std::u8string(path.begin(), path.end());
}

TempFolder::TempFolder() {
    const auto all = std::filesystem::canonical(std::filesystem::temp_directory_path());
    std::random_device random;
    do
        path_ = all / ("marlo-test-" + std::to_string(random()));
    while (!std::filesystem::create_directory(path_));
}

TempFolder::~TempFolder() {
    RemoveTree(path_);
}

std::string TempFolder::Path(const std::string& name) const {
    std::filesystem::path full = name.empty() ? path_ : Of(name);
    const std::u8string path = full.make_preferred().u8string();
    return {path.begin(), path.end()};
}

std::filesystem::path TempFolder::Of(const std::string& name) const {
    return path_ / PathOf(name);
}

std::string TempFolder::Write(const std::string& name, std::string_view bytes) const {
    std::filesystem::create_directories((Of(name)).parent_path());
    std::ofstream file(Of(name), std::ios::binary);
    file << bytes;
    EXPECT_TRUE(file.flush().good()) << "cannot write " << name;
    return Path(name);
}

std::string TempFolder::MakeFolder(const std::string& name) const {
    std::filesystem::create_directories(Of(name));
    return Path(name);
}

std::string TempFolder::Read(const std::string& name) const {
    std::ifstream file(Of(name), std::ios::binary);
    EXPECT_TRUE(file.good()) << "cannot read " << name;
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return std::move(bytes).str();
}

void TempFolder::SetLastChange(const std::string& name, std::time_t moment) const {
    std::filesystem::last_write_time(Of(name), std::chrono::file_clock::from_sys(
                                                   std::chrono::system_clock::from_time_t(moment)));
}

bool TempFolder::Exists(const std::string& name) const {
    return std::filesystem::exists(Of(name));
}

}  // namespace marlo::test
