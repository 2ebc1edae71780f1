#include "platform/linux/LinuxDesktop.h"

#include <cerrno>
#include <sys/stat.h>
#include <utility>

#include "platform/Ascii.h"
#include "platform/linux/Gio.h"
#include "platform/linux/PosixError.h"

namespace marlo::platform {

namespace {

/// The description that a file gets by its name alone.
std::string DescriptionOf(const std::string& path) {
    constexpr std::size_t extensionLength = 4;
    if (path.size() < extensionLength)
        return "";
    const std::string extension =
        UpperAscii(std::string_view(path).substr(path.size() - extensionLength));
    if (extension == ".CPR")
        return "CPR File";
    return extension == ".DLL" ? "Application Extension" : "";
}

// The shell's answers.
constexpr int kFileNotFound = 2;
constexpr int kAccessDenied = 5;
constexpr int kNoAssociation = 31;
constexpr int kDone = kLastShellFailure + 1;

/// The type and permissions of what is at `path`, if there is anything.
std::optional<mode_t> ModeOf(const std::string& path) {
    struct stat status {};
    // A NUL byte ends a path for the system, so one that holds it names nothing.
    if (path.find('\0') != std::string::npos || stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return status.st_mode;
}

bool IsWebAddress(const std::string& file) {
    return file.starts_with("https://") || file.starts_with("http://");
}

int StartProgram(const std::string& program, const std::string& argument) {
    if (!ModeOf(program) || argument.find('\0') != std::string::npos)
        return kFileNotFound;
    return GioStart(program, argument) ? kDone : kAccessDenied;
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

int LinuxDesktop::ShellExecute(const ShellRequest& request) const {
    if (request.isProgram)
        return StartProgram(request.file, request.parameters);
    if (IsWebAddress(request.file))
        return GioOpenAddress(request.file) ? kDone : kNoAssociation;
    const bool isFolder = request.file == "explorer.exe";
    const std::string& path = isFolder ? request.parameters : request.file;
    const auto mode = ModeOf(path);
    if (!mode || (isFolder && !S_ISDIR(*mode)))
        return kFileNotFound;
    return GioOpen(path) ? kDone : kNoAssociation;
}

std::string LinuxDesktop::ShortPath(const std::string& path) const {
    return ModeOf(path) ? path : "";
}

std::optional<ShellIcon> LinuxDesktop::SmallIcon(const std::string& path) const {
    std::string name = GioIconOfProgram(path);
    return name.empty() ? std::nullopt : std::optional(ShellIcon{std::move(name)});
}

}  // namespace marlo::platform
