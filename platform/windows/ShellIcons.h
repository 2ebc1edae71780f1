#pragma once

#include <optional>
#include <string>

#include "platform/Desktop.h"

namespace marlo::platform {

/// The small icon that the shell has for a file.
/// @return nothing when the shell returns no image list.
std::optional<ShellIcon> DrawnSmallIcon(const std::string& path);

}  // namespace marlo::platform
