#pragma once

#include <string>

namespace marlo::platform {

/// The full path of the program that opens files with `extension` (with its dot) on this desktop;
/// empty when there is none, or GIO is not installed. GIO is loaded when it is first asked: loading
/// it with the program would double the time that the terminal program takes to start.
std::string GioProgramForExtension(const std::string& extension);

/// The icon that the desktop shows for a program: a name in its icon theme, or the full path of a
/// picture file; empty when it knows no such program, or GIO is not installed.
/// @param path the program's full path.
std::string GioIconOfProgram(const std::string& path);

/// Opens a file or folder with the desktop's program for it.
/// @return false when there is none, or GIO is not installed.
bool GioOpen(const std::string& path);

/// Opens what is at an address, such as a web page, with the desktop's program for it.
/// @return false when there is none, or GIO is not installed.
bool GioOpenAddress(const std::string& address);

/// Starts a program, which goes on by itself.
/// @param argument its one argument; empty for none.
/// @return false when it cannot be started, or GIO is not installed.
bool GioStart(const std::string& program, const std::string& argument);

}  // namespace marlo::platform
