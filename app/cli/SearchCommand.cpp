#include <iostream>
#include <string>
#include <system_error>

#include "app/cli/CommandSupport.h"
#include "app/cli/Commands.h"
#include "app/cli/TerminalWindow.h"
#include "core/Settings.h"
#include "platform/FileSystem.h"
#include "platform/Terminal.h"
#include "scan/SearchRun.h"

namespace marlo::cli {

namespace {

void PrintSummary(const SearchSummary& summary) {
    std::cout << Counted(summary.projects, "project") << ", "
              << Counted(summary.projectPlugins, "plug-in") << " in them, used "
              << Counted(summary.occurrences, "time");
    if (summary.failedProjects > 0)
        std::cout << "; could not be read to the end: "
                  << Counted(summary.failedProjects, "project");
    std::cout << ".\n";
}

int ExitCodeOf(const SearchSummary& summary, const TerminalWindow& window) {
    if (summary.outcome == SearchOutcome::Cancelled || window.WasInterruptedAtQuestion())
        return kCancelled;
    return window.SawFailure() || summary.outcome != SearchOutcome::Written ? kFailed : kDone;
}

}  // namespace

int RunSearch(const Environment& environment, const SearchOptions& options) {
    TerminalWindow window(ProgressStyleFor(options.showProgress));
    const Application application = ApplicationOf(environment, window);
    const std::string asked =
        options.folder ? *options.folder : getSetting(application, setting::kLastFolder);
    if (asked.empty() && window.SawFailure())
        return kFailed;
    if (asked.empty())
        return Complain("search", kWrongUsage,
                        options.folder ? "FOLDER is empty"
                                       : "no FOLDER is given, and none was searched before");
    // A mistyped folder, or one that may not be read, would count as one without projects, and
    // empty the result files.
    std::error_code error;
    const std::string folder = platform::FullPath(asked, error);
    if (error || !platform::IsFolder(folder, error))
        return Complain("search", kFailed, asked + ": no such folder");
    (void)platform::Folder::Open(folder, error);
    if (error)
        return Complain("search", kFailed,
                        asked + ": the folder cannot be read (" + error.message() + ")");

    window.SetAnswers(
        {.folder = folder,
         .includeSubfolders = options.includeSubfolders ? MessageAnswer::Yes : MessageAnswer::No});
    platform::NoteInterrupts();
    SearchLists lists;
    const SearchSummary summary = GetPlugins4AllProjects(application, window, lists);
    if (summary.outcome == SearchOutcome::Written)
        PrintSummary(summary);
    return FinishOutput(ExitCodeOf(summary, window));
}

}  // namespace marlo::cli
