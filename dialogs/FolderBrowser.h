#pragma once

#include <optional>
#include <string>

#include "core/Application.h"
#include "platform/Pickers.h"

namespace marlo {

using platform::FolderRequest;

/// The platform's folder picker, shown over the window that owns it.
class FolderChooser {
  public:
    virtual ~FolderChooser() = default;

    /// @return the path chosen, as it stands in the platform's buffer: a NUL ends it, whatever
    ///         stands behind; nothing when the user cancels.
    virtual std::optional<std::string> ChooseFolder(const FolderRequest& request) = 0;
};

/// Lets the user choose a folder.
/// @param initialFolder selected at first, and shown with its path where the picker tells what is
///        selected, as is whatever the user selects then; empty for neither.
/// @param includeFiles whether files are shown too.
/// @param newDialogStyle whether the picker can be resized and makes folders.
/// @return the folder's path; empty when the user cancels, and after a failure, which is logged
///         under "FolderBrowser:GetFolder"; those while it is shown, which change nothing, under
///         "FolderBrowser:BrowseCallbackProc" and "FolderBrowser:GetAddressofFunction".
std::string GetFolder(const Application& application, FolderChooser& chooser,
                      const std::string& initialFolder, const std::string& title, bool includeFiles,
                      bool newDialogStyle);

}  // namespace marlo
