#include "tests/support/HeldFiles.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <unistd.h>

#include "tests/support/System.h"

namespace marlo::test {

namespace {

constexpr uid_t kNobody = 65534;

void GiveAway(const std::filesystem::path& path) {
    if (chown(path.c_str(), kNobody, kNobody) != 0)
        throw std::runtime_error("cannot give a file away");
}

}  // namespace

/// Files are free here whoever has them open. In a folder of this kind they belong to their owner,
/// and this process becomes somebody else.
struct HeldFiles::Hold {
    explicit Hold(const std::vector<std::string>& paths) {
        const auto folder = std::filesystem::path(paths.at(0)).parent_path();
        std::filesystem::permissions(folder, std::filesystem::perms{01777});
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            if (std::find(paths.begin(), paths.end(), entry.path().string()) == paths.end())
                GiveAway(entry.path());
        user = std::make_unique<OrdinaryUser>();
    }

    std::unique_ptr<OrdinaryUser> user;
};

HeldFiles::HeldFiles(const std::vector<std::string>& paths)
    : hold_(std::make_unique<Hold>(paths)) {}

HeldFiles::~HeldFiles() = default;

bool HeldFiles::ArePossible() {
    return getuid() == 0;
}

void HeldFiles::Free(const std::string& path) {
    hold_->user.reset();
    GiveAway(path);
    hold_->user = std::make_unique<OrdinaryUser>();
}

struct UnreadableFile::Hold {
    OrdinaryUser user;
};

UnreadableFile::UnreadableFile(const std::string& path) {
    std::filesystem::permissions(path, std::filesystem::perms::none);
    hold_ = std::make_unique<Hold>();
}

UnreadableFile::~UnreadableFile() = default;

}  // namespace marlo::test
