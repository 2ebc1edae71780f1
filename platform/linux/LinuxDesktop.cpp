#include "platform/linux/LinuxDesktop.h"

#include <cerrno>
#include <sys/stat.h>

#include "platform/linux/Gio.h"
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

/// The description that a file gets by its name alone.
std::string DescriptionOf(const std::string& path) {
    if (EndsWithIgnoringCase(path, ".cpr"))
        return "CPR File";
    return EndsWithIgnoringCase(path, ".dll") ? "Application Extension" : "";
}

}  // namespace

std::string LinuxDesktop::FileTypeDescription(const std::string& path, FileKind kind,
                                              std::error_code& error) const {
    error.clear();
    std::string description = DescriptionOf(path);
    if (description.empty() || kind == FileKind::Regular)
        return description;
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        // A dangling link, or a file that has just gone: not a regular file, and no failure.
        if (errno != ENOENT && errno != ENOTDIR && errno != ELOOP)
            error = PosixError();
        return {};
    }
    return S_ISREG(status.st_mode) ? description : "";
}

std::optional<std::string> LinuxDesktop::ProgramForExtension(const std::string& extension) const {
    return GioProgramForExtension(extension);
}

}  // namespace marlo::platform
