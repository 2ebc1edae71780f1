#include "dialogs/FolderBrowser.h"

#include "core/ErrorLog.h"

namespace marlo {

namespace {

std::uint32_t BrowseFlags(bool includeFiles, bool newDialogStyle) {
    std::uint32_t flags = FolderRequest::kOnlyFolders | FolderRequest::kStatusText;
    if (includeFiles)
        flags |= FolderRequest::kFilesToo;
    if (newDialogStyle)
        flags |= FolderRequest::kNewStyle;
    return flags;
}

}  // namespace

std::string GetFolder(const Application& application, FolderChooser& chooser,
                      const std::string& initialFolder, const std::string& title, bool includeFiles,
                      bool newDialogStyle) {
    std::string folder;
    RunGuarded(application, "FolderBrowser:GetFolder", [&] {
        const auto chosen =
            chooser.ChooseFolder({.title = title,
                                  .initialFolder = initialFolder,
                                  .flags = BrowseFlags(includeFiles, newDialogStyle)});
        if (chosen)
            folder = chosen->substr(0, chosen->find('\0'));
    });
    return folder;
}

}  // namespace marlo
