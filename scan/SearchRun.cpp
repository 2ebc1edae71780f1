#include "scan/SearchRun.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "core/ErrorLog.h"
#include "core/ResultFileNames.h"
#include "core/Settings.h"
#include "core/Text.h"
#include "scan/ProjectDiscovery.h"
#include "scan/ProjectPlugins.h"
#include "scan/ResultFiles.h"

namespace marlo {

namespace {

struct Request {
    std::string folder;
    bool includeSubfolders = false;
    bool sameAsLastRun = false;
};

/// Asks for the folder and for its subfolders, and remembers both answers.
/// @return nothing when the user cancels.
std::optional<Request> AskWhatToSearch(const Application& application, MainWindow& window) {
    const std::string lastFolder = getSetting(application, setting::kLastFolder);
    const bool lastSubfolders = getSetting(application, setting::kIncludeSubfolders) == "1";
    const std::string folder = window.PickFolder("Please select a folder:", lastFolder);
    if (folder.empty())
        return std::nullopt;
    WriteSetting(application, setting::kLastFolder, folder);
    const MessageAnswer answer = window.ShowMessage({.text = "Include Subfolders in the search?",
                                                     .buttons = MessageButtons::YesNoCancel,
                                                     .icon = MessageIcon::Question,
                                                     .title = ""});
    if (answer != MessageAnswer::Yes && answer != MessageAnswer::No)
        return std::nullopt;
    const bool subfolders = answer == MessageAnswer::Yes;
    WriteSetting(application, setting::kIncludeSubfolders, subfolders ? "1" : "0");
    return Request{.folder = folder,
                   .includeSubfolders = subfolders,
                   .sameAsLastRun = folder == lastFolder && subfolders == lastSubfolders};
}

void FindProjects(const Application& application, MainWindow& window, SearchLists& lists,
                  const Request& request) {
    window.SetText1("(1) Compiling list of SX Projects...");
    window.SetText2("");
    window.DisableButtons();
    window.LetEventsRun();
    const DateNumber lastRunDate = LeadingNumber(getSetting(application, setting::kLastSearch));
    std::int32_t projectCount = 1;
    GetListOfProjects(application, window, lists, request.folder, request.includeSubfolders,
                      request.sameAsLastRun, lastRunDate, projectCount);
}

bool IsCancelled(const MainWindow& window) {
    return window.CancelTag() == kCancelTag;
}

/// Scans the projects found until the user cancels.
void ScanProjects(const Application& application, MainWindow& window, SearchLists& lists,
                  SearchSummary& summary) {
    const auto count = static_cast<int>(lists.ProjectFiles.UpperBound());
    int index = 0;
    for (const std::string_view file : lists.ProjectFiles) {
        const std::string path(file);
        const int percentage = SearchPercentage(++index, count);
        window.SetText1("(2) Finding Plugins (" + std::to_string(percentage) + "%) ...");
        window.SetText2(path);
        window.Repaint();
        window.LetEventsRun();
        if (IsCancelled(window))
            return;
        ++summary.projects;
        if (!GetPlugins4Project(application, lists, path))
            ++summary.failedProjects;
    }
}

void WriteResults(const Application& application, MainWindow& window, SearchLists& lists,
                  SearchSummary& summary) {
    lists.ProjectFiles = {};
    window.SetText1("(3) Writing to file...");
    window.SetText2("");
    window.Repaint();
    summary.occurrences = lists.PluginOccurrences.size();
    summary.projectPlugins = lists.ProjectPluginKeys.UpperBound();
    if (CreateResultFiles(application, window, lists)) {
        summary.outcome = SearchOutcome::Written;
        WriteSetting(application, setting::kLastSearch, SettingDate(application.clock.Now()));
    } else {
        summary.outcome = SearchOutcome::Failed;
        window.ShowMessage({.text = "Errors occurred while creating the result files. See " +
                                    application.folder + result_file::kErrorLog + " for details.",
                            .icon = MessageIcon::Exclamation});
    }
}

void Search(const Application& application, MainWindow& window, SearchLists& lists,
            SearchSummary& summary) {
    window.SetCancelTag("");
    lists.Clear();
    const auto request = AskWhatToSearch(application, window);
    if (!request)
        return;
    FindProjects(application, window, lists, *request);
    ScanProjects(application, window, lists, summary);
    if (!IsCancelled(window)) {
        WriteResults(application, window, lists, summary);
        return;
    }
    summary.outcome = SearchOutcome::Cancelled;
    window.ShowMessage({.text = "Cancelled", .icon = MessageIcon::Information});
}

/// `value` with the digits that its type has. Some processors calculate with more of them.
double Rounded(double value) {
    const volatile double rounded = value;
    return rounded;
}

}  // namespace

int SearchPercentage(int index, int count) {
    // Dividing first loses a little, and users know the figures that come of it.
    const double share = Rounded(static_cast<double>(index) / static_cast<double>(count));
    return static_cast<int>(std::floor(Rounded(share * 100.0)));
}

SearchSummary GetPlugins4AllProjects(const Application& application, MainWindow& window,
                                     SearchLists& lists) {
    SearchSummary summary;
    const auto run = [&](auto step) {
        return RunGuarded(application, "GetPlugins4AllProjects", step);
    };
    if (!run([&] { Search(application, window, lists, summary); })) {
        summary.outcome = SearchOutcome::Failed;
        run([&] { ShowUnexpectedError(window); });
    }
    // Every step from here on is taken, whatever fails before it.
    lists.Clear();
    run([&] { window.ClearStatusBar(); });
    run([&] { window.Repaint(); });
    run([&] { window.EnableButtons(); });
    if (summary.failedProjects > 0)
        run([&] {
            // The folder's name is what users of this message know, though the log lies elsewhere.
            window.ShowMessage({.text = "Errors occurred. See " + application.folder +
                                        "\\results\\errorlog.txt for details"});
        });
    return summary;
}

}  // namespace marlo
