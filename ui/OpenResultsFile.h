#pragma once

#include <string>

#include "core/Application.h"
#include "core/MainWindow.h"

namespace marlo {

/// Opens a file of the result folder in the program that the user chose for such files. A file that
/// does not exist starts the program without one. The user is told when there is no such program or
/// it cannot be started. An unexpected failure is logged under "OpenResultsFile" and told too.
///
/// @param fileName for example "fln.csv".
void OpenResultsFile(const Application& application, MainWindow& window,
                     const std::string& fileName);

/// The short (8.3) form of a path where the platform has one, else the path itself; "" for a path
/// that does not exist.
std::string GetShortPath(const Application& application, const std::string& path);

}  // namespace marlo
