#include "platform/linux/LinuxDesktop.h"

#include <cerrno>
#include <sys/stat.h>

#include "platform/linux/PosixError.h"

namespace marlo::platform {

namespace {

bool EndsWithIgnoringCase(const std::string& path, std::string_view lowerCaseExtension) {
    if (path.size() < lowerCaseExtension.size())
        return false;
    const std::size_t start = path.size() - lowerCaseExtension.size();
    for (std::size_t i = 0; i < lowerCaseExtension.size(); ++i) {
        const char c = path[start + i];
        const char lower = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        if (lower != lowerCaseExtension[i])
            return false;
    }
    return true;
}

}  // namespace

std::string LinuxDesktop::FileTypeDescription(const std::string& path,
                                              std::error_code& error) const {
    error.clear();
    if (!EndsWithIgnoringCase(path, ".cpr"))
        return {};
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        // A dangling link, or a file that has just gone: not a regular file, and no failure.
        if (errno != ENOENT && errno != ENOTDIR && errno != ELOOP)
            error = PosixError();
        return {};
    }
    return S_ISREG(status.st_mode) ? "CPR File" : "";
}

}  // namespace marlo::platform
