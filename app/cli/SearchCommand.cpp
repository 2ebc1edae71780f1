#include <iostream>
#include <string>
#include <system_error>

#include "app/cli/Commands.h"
#include "app/cli/TerminalText.h"
#include "app/cli/TerminalWindow.h"
#include "core/RunTimeError.h"
#include "core/Settings.h"
#include "platform/FileSystem.h"
#include "platform/Terminal.h"
#include "scan/SearchRun.h"

namespace marlo::cli {

namespace {

ProgressStyle StyleFor(const SearchOptions& options) {
    if (platform::IsTerminal(platform::Stream::Error))
        return ProgressStyle::Redrawn;
    return options.showProgress ? ProgressStyle::Lines : ProgressStyle::None;
}

std::string Counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

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
    if (summary.outcome == SearchOutcome::Cancelled)
        return kCancelled;
    return window.SawFailure() || summary.outcome != SearchOutcome::Written ? kFailed : kDone;
}

}  // namespace

int RunSearch(const Environment& environment, const SearchOptions& options) {
    Application application{
        environment.applicationFolder, environment.clock, environment.desktop, {}};
    const std::string asked =
        options.folder.empty() ? getSetting(application, setting::kLastFolder) : options.folder;
    if (asked.empty()) {
        std::cerr << "marlo-cli: search: no FOLDER is given, and none was searched before\n";
        return kWrongUsage;
    }
    // A mistyped folder would count as one without projects, and empty the result files.
    std::error_code error;
    const std::string folder = platform::CanonicalPath(asked, error);
    if (error || !platform::IsFolder(folder, error)) {
        std::cerr << "marlo-cli: search: " << Printable(asked) << ": no such folder\n";
        return kFailed;
    }

    const MessageAnswer subfolders =
        options.includeSubfolders ? MessageAnswer::Yes : MessageAnswer::No;
    TerminalWindow window({.folder = folder, .includeSubfolders = subfolders}, StyleFor(options));
    application.onErrorLogged = [&](const ErrorEntry& entry) { window.ShowLogEntry(entry); };
    platform::NoteInterrupts();
    SearchLists lists;
    const SearchSummary summary = GetPlugins4AllProjects(application, window, lists);
    if (summary.outcome == SearchOutcome::Written)
        PrintSummary(summary);
    return FinishOutput(ExitCodeOf(summary, window));
}

}  // namespace marlo::cli
