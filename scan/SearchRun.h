#pragma once

#include <cstddef>

#include "core/Application.h"
#include "core/MainWindow.h"
#include "scan/SearchLists.h"

namespace marlo {

/// How far a search run has come, in whole percent, when project `index` of `count` is about to be
/// scanned (1-based). Rounding is part of it: 29 of 100 is 28.
int SearchPercentage(int index, int count);

enum class SearchOutcome {
    NotStarted,  ///< the user cancelled one of the questions
    Written,     ///< the result files were written
    Cancelled,   ///< the old result files are as they were
    Failed,
};

/// What came of a search run.
struct SearchSummary {
    SearchOutcome outcome = SearchOutcome::NotStarted;
    std::size_t projects = 0;        ///< projects scanned
    std::size_t failedProjects = 0;  ///< those among them that could not be scanned to their end
    std::size_t occurrences = 0;     ///< plug-in banks found
    std::size_t projectPlugins = 0;  ///< plug-ins found, counted once a project
};

/// The whole "Search SX Projects" command: asks for the folder and for its subfolders, finds the
/// projects, scans each one, writes the result files and says how it went in message boxes.
///
/// Reads and writes the settings 1 (folder) and 3 (subfolders), reads setting 11 (date and time of
/// the last run), and writes it when the result files were written. Cancel is seen between two
/// projects; it leaves the old result files as they are. A project that cannot be scanned does not
/// stop the run. An unexpected failure is logged under "GetPlugins4AllProjects". However the run
/// ends, `lists` are empty, the status boxes are cleared and the buttons enabled again; each of
/// these is done also when one before it failed, which is logged in the same way.
SearchSummary GetPlugins4AllProjects(const Application& application, MainWindow& window,
                                     SearchLists& lists);

}  // namespace marlo
