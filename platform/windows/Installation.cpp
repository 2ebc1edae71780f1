#include "platform/Installation.h"

namespace marlo::platform {

std::optional<std::string> InstallPrefix() {
    return std::nullopt;
}

std::optional<std::string> UserDataFolder() {
    return std::nullopt;
}

}  // namespace marlo::platform
