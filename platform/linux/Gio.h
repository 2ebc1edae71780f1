#pragma once

#include <string>

namespace marlo::platform {

/// The full path of the program that opens files with `extension` (with its dot) on this desktop;
/// empty when there is none, or GIO is not installed. GIO is loaded when it is first asked: loading
/// it with the program would double the time that the terminal program takes to start.
std::string GioProgramForExtension(const std::string& extension);

/// Opens a file or folder with the desktop's program for it.
/// @return false when there is none, or GIO is not installed.
bool GioOpen(const std::string& path);

/// Starts a program, which goes on by itself.
/// @param argument its one argument; empty for none.
/// @return false when it cannot be started, or GIO is not installed.
bool GioStart(const std::string& program, const std::string& argument);

}  // namespace marlo::platform
