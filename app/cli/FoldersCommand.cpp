#include <algorithm>
#include <string>
#include <system_error>
#include <vector>

#include "app/cli/CommandSupport.h"
#include "app/cli/Commands.h"
#include "app/cli/TerminalWindow.h"
#include "core/Settings.h"
#include "inventory/VstFolders.h"
#include "platform/FileSystem.h"

namespace marlo::cli {

namespace {

constexpr const char* kCommand = "folders";

/// The folders as a start of the program finds them.
std::vector<std::string> Folders(const Application& application) {
    FillInVstFolder(application);
    return ReadVstFolders(application);
}

/// Writes the folders, unless they could not be read whole: those that were not would be lost.
int Write(const Application& application, const TerminalWindow& window,
          const std::vector<std::string>& folders) {
    if (window.SawFailure())
        return kFailed;
    const bool written = WriteVstFolders(application, folders);
    return written ? kDone : kFailed;
}

}  // namespace

int RunFoldersList(const Environment& environment) {
    TerminalWindow window(ProgressStyle::None);
    const Application application = ApplicationOf(environment, window);
    for (const std::string& folder : Folders(application)) {
        PrintField(folder);
        std::error_code error;
        if (!platform::IsFolder(folder, error))
            Complain(kCommand, kDone, folder + ": no such folder now");
    }
    return FinishOutput(window.SawFailure() ? kFailed : kDone);
}

int RunFoldersAdd(const Environment& environment, const FolderOptions& options) {
    const std::string& folder = options.folder;
    TerminalWindow window(ProgressStyle::None);
    const Application application = ApplicationOf(environment, window);
    std::error_code error;
    const std::string path = platform::FullPath(folder, error);
    if (error || !platform::IsFolder(path, error))
        return Complain(kCommand, kFailed, folder + ": no such folder");
    if (!FitsSetting(path))
        return ComplainOfPath(kCommand, path);
    auto folders = Folders(application);
    if (std::find(folders.begin(), folders.end(), path) != folders.end())
        return Complain(kCommand, kFailed, "Path is already in the list");
    folders.push_back(path);
    return Write(application, window, folders);
}

int RunFoldersRemove(const Environment& environment, const FolderOptions& options) {
    const std::string& folder = options.folder;
    TerminalWindow window(ProgressStyle::None);
    const Application application = ApplicationOf(environment, window);
    auto folders = Folders(application);
    auto found = std::find(folders.begin(), folders.end(), folder);
    if (found == folders.end()) {
        std::error_code error;
        found = std::find(folders.begin(), folders.end(), platform::FullPath(folder, error));
    }
    if (found == folders.end())
        return Complain(kCommand, kFailed, folder + ": not in the list");
    folders.erase(found);
    return Write(application, window, folders);
}

}  // namespace marlo::cli
