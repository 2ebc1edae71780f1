#pragma once

#include <string>

namespace marlo::platform {

/// The full path of the program that opens files with `extension` (with its dot) on this desktop;
/// empty when there is none, or GIO is not installed. GIO is loaded when it is first asked: loading
/// it with the program would double the time that the terminal program takes to start.
std::string GioProgramForExtension(const std::string& extension);

}  // namespace marlo::platform
