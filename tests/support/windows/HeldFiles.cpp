#include "tests/support/HeldFiles.h"

#include <filesystem>
#include <map>
#include <stdexcept>
#include <windows.h>

#include "tests/support/TempFolder.h"

namespace marlo::test {

namespace {

HANDLE Open(const std::string& path, DWORD sharing) {
    const HANDLE handle = CreateFileW(PathOf(path).c_str(), GENERIC_READ, sharing, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        throw std::runtime_error("cannot hold " + path);
    return handle;
}

}  // namespace

struct HeldFiles::Hold {
    Hold() = default;
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;
    Hold(Hold&&) = delete;
    Hold& operator=(Hold&&) = delete;
    ~Hold() {
        for (const auto& [path, handle] : handles)
            CloseHandle(handle);
    }

    std::map<std::string, HANDLE> handles;
};

HeldFiles::HeldFiles(const std::vector<std::string>& paths) : hold_(std::make_unique<Hold>()) {
    for (const std::string& path : paths)
        hold_->handles[path] = Open(path, FILE_SHARE_READ);
}

HeldFiles::~HeldFiles() = default;

bool HeldFiles::ArePossible() {
    return true;
}

void HeldFiles::Free(const std::string& path) {
    CloseHandle(hold_->handles.at(path));
    hold_->handles.erase(path);
}

struct UnreadableFile::Hold {
    HANDLE handle;
};

UnreadableFile::UnreadableFile(const std::string& path)
    : hold_(std::make_unique<Hold>(Hold{Open(path, 0)})) {}

UnreadableFile::~UnreadableFile() {
    CloseHandle(hold_->handle);
}

}  // namespace marlo::test
