#pragma once

#include <string_view>
#include <system_error>

namespace marlo::platform {

/// Why nothing can be at `path`, if so: a system ends a path at a NUL byte, and would take it for
/// another one.
inline std::error_code CheckPath(std::string_view path) {
    return path.find('\0') == std::string_view::npos
               ? std::error_code()
               : std::make_error_code(std::errc::invalid_argument);
}

}  // namespace marlo::platform
