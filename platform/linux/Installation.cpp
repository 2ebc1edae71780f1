#include "platform/Installation.h"

#include <array>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

#include "platform/FileSystem.h"

namespace marlo::platform {

namespace {

/// The value of an environment variable that names a path from the root on.
std::optional<std::string> PathIn(const char* variable) {
    const char* const value = std::getenv(variable);
    if (value == nullptr || *value != '/')
        return std::nullopt;
    return value;
}

/// The home that the system has for the user.
std::optional<std::string> RegisteredHome() {
    std::array<char, 16384> texts{};
    passwd entry{};
    passwd* found = nullptr;
    getpwuid_r(geteuid(), &entry, texts.data(), texts.size(), &found);
    if (found == nullptr || *found->pw_dir != '/')
        return std::nullopt;
    return found->pw_dir;
}

}  // namespace

std::optional<std::string> InstallPrefix() {
    const std::string folder = ProgramFolder();
    return folder.ends_with("/bin") ? ParentPath(folder) : std::nullopt;
}

std::optional<std::string> UserDataFolder() {
    if (auto folder = PathIn("XDG_DATA_HOME"))
        return folder;
    auto home = PathIn("HOME");
    if (!home)
        home = RegisteredHome();
    if (!home)
        return std::nullopt;
    return JoinPath(*home, ".local/share");
}

}  // namespace marlo::platform
