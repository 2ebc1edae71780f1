#pragma once

#include <system_error>

namespace marlo::platform {

/// What an error number of the system means, in the terms that the logic knows.
std::error_code WindowsError(unsigned long number);

/// The failure of the system call just made.
std::error_code LastWindowsError();

}  // namespace marlo::platform
