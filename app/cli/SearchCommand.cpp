#include <iostream>
#include <string>
#include <system_error>

#include "app/cli/Commands.h"
#include "app/cli/TerminalText.h"
#include "app/cli/TerminalWindow.h"
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
    if (summary.outcome == SearchOutcome::Cancelled || window.WasInterruptedAtQuestion())
        return kCancelled;
    return window.SawFailure() || summary.outcome != SearchOutcome::Written ? kFailed : kDone;
}

int Complain(int exitCode, const std::string& text) {
    std::cerr << "marlo-cli: search: " << Printable(text) << '\n';
    return exitCode;
}

}  // namespace

int RunSearch(const Environment& environment, const SearchOptions& options) {
    TerminalWindow window(StyleFor(options));
    const Application application{environment.applicationFolder, environment.clock,
                                  environment.desktop,
                                  [&](const ErrorEntry& entry) { window.ShowLogEntry(entry); }};
    const std::string asked =
        options.folder ? *options.folder : getSetting(application, setting::kLastFolder);
    if (asked.empty() && window.SawFailure())
        return kFailed;
    if (asked.empty())
        return Complain(kWrongUsage, options.folder
                                         ? "FOLDER is empty"
                                         : "no FOLDER is given, and none was searched before");
    // A mistyped folder would count as one without projects, and empty the result files.
    std::error_code error;
    const std::string folder = platform::FullPath(asked, error);
    if (error || !platform::IsFolder(folder, error))
        return Complain(kFailed, asked + ": no such folder");

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
