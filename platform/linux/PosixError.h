#pragma once

#include <cerrno>
#include <system_error>

namespace marlo::platform {

/// The failure of the system call just made.
inline std::error_code PosixError() {
    return {errno, std::generic_category()};
}

}  // namespace marlo::platform
