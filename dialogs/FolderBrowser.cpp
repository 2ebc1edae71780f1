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

/// Selects the initial folder once the picker is there, and shows the path of what is selected.
void BrowseCallbackProc(const Application& application, const std::string& initialFolder,
                        platform::BrowseMessage message, platform::OpenFolderPicker& picker) {
    RunGuarded(application, "FolderBrowser:BrowseCallbackProc", [&] {
        switch (message) {
            case platform::BrowseMessage::Initialized:
                picker.SetSelection(initialFolder);
                break;
            case platform::BrowseMessage::SelectionChanged:
                picker.SetStatusText(picker.SelectedPath());
                break;
        }
    });
}

using BrowseCallback = decltype(FolderRequest::callback);

/// @return the picker's callback, as long as both arguments live; none after a failure.
BrowseCallback GetAddressofFunction(const Application& application,
                                    const std::string& initialFolder) {
    BrowseCallback callback;
    RunGuarded(application, "FolderBrowser:GetAddressofFunction", [&] {
        callback = [&](platform::BrowseMessage message, platform::OpenFolderPicker& picker) {
            BrowseCallbackProc(application, initialFolder, message, picker);
        };
    });
    return callback;
}

}  // namespace

std::string GetFolder(const Application& application, FolderChooser& chooser,
                      const std::string& initialFolder, const std::string& title, bool includeFiles,
                      bool newDialogStyle) {
    std::string folder;
    RunGuarded(application, "FolderBrowser:GetFolder", [&] {
        FolderRequest request{.title = title,
                              .initialFolder = initialFolder,
                              .flags = BrowseFlags(includeFiles, newDialogStyle)};
        if (!initialFolder.empty())
            request.callback = GetAddressofFunction(application, initialFolder);
        const auto chosen = chooser.ChooseFolder(request);
        if (chosen)
            folder = chosen->substr(0, chosen->find('\0'));
    });
    return folder;
}

}  // namespace marlo
