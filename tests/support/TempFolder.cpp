#include "tests/support/TempFolder.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <unistd.h>

#include <gtest/gtest.h>

namespace marlo::test {

namespace {

constexpr uid_t kNobody = 65534;

}  // namespace

TempFolder::TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "marlo-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("cannot make a folder for the test");
    path_ = std::filesystem::canonical(pattern);
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string TempFolder::Path(const std::string& name) const {
    return name.empty() ? path_.string() : (path_ / name).string();
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

bool TempFolder::Exists(const std::string& name) const {
    return std::filesystem::exists(path_ / name);
}

OrdinaryUser::OrdinaryUser() {
    if (getuid() == 0 && seteuid(kNobody) != 0)
        throw std::runtime_error("cannot become an ordinary user");
}

OrdinaryUser::~OrdinaryUser() {
    if (getuid() == 0 && seteuid(0) != 0)
        std::terminate();
}

}  // namespace marlo::test
