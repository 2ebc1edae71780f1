#include "tests/support/HeldFiles.h"

#include <filesystem>
#include <map>
#include <stdexcept>
#include <windows.h>

#include "tests/support/TempFolder.h"

namespace marlo::test {

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
    for (const std::string& path : paths) {
        const HANDLE handle = CreateFileW(PathOf(path).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                          nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle == INVALID_HANDLE_VALUE)
            throw std::runtime_error("cannot hold " + path);
        hold_->handles[path] = handle;
    }
}

HeldFiles::~HeldFiles() = default;

bool HeldFiles::ArePossible() {
    return true;
}

void HeldFiles::Free(const std::string& path) {
    CloseHandle(hold_->handles.at(path));
    hold_->handles.erase(path);
}

}  // namespace marlo::test
