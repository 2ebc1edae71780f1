#pragma once

#include <cstdint>
#include <string>

#include "core/Application.h"
#include "core/MainWindow.h"
#include "scan/SearchLists.h"

namespace marlo {

/// What is made of the last run's date: the number that its text begins with, which is its month.
using DateNumber = double;

/// Collects the full paths of the project files in a folder in `lists.ProjectFiles`, in the order
/// of their names without regard to case, a folder's own files before those of its subfolders.
///
/// A file is a project when the desktop describes its type as "CubaseSX Project" or "CPR File"; on
/// Linux that is a regular file with the extension `.cpr` (see `platform::Desktop`). Each project
/// is listed once, under its real path if that lies in `folder` (see `WalkFolder`). It is shown in
/// the window's second status box, and events run, before the next file is asked about.
///
/// @param folder where to start; nothing is added when it cannot be opened.
/// @param sameAsLastRun,lastRunDate handed down to the subfolders and not used otherwise.
/// @param projectCount the next free index of `lists.ProjectFiles`; advanced by the projects found.
/// @throws RunTimeError when any other folder cannot be opened, or a folder or a file's type cannot
///         be read. Logs nothing.
void GetListOfProjects(const Application& application, MainWindow& window, SearchLists& lists,
                       const std::string& folder, bool includeSubfolders, bool sameAsLastRun,
                       DateNumber lastRunDate, std::int32_t& projectCount);

}  // namespace marlo
