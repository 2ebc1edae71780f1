#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/Application.h"

namespace marlo {

/// What a folder picker is asked to show, in the platform's own terms.
struct FolderRequest {
    static constexpr std::uint32_t kOnlyFolders = 0x1;  ///< nothing but real folders
    static constexpr std::uint32_t kStatusText = 0x4;   ///< the selected folder is shown as text
    static constexpr std::uint32_t kNewStyle = 0x40;
    static constexpr std::uint32_t kFilesToo = 0x4000;

    std::string title;
    std::string initialFolder;  ///< selected at first; empty for none
    std::uint32_t flags = 0;
};

/// The platform's folder picker, shown over the window that owns it.
class FolderChooser {
  public:
    virtual ~FolderChooser() = default;

    /// @return the path chosen, as it stands in the platform's buffer: a NUL ends it, whatever
    ///         stands behind; nothing when the user cancels.
    virtual std::optional<std::string> ChooseFolder(const FolderRequest& request) = 0;
};

/// Lets the user choose a folder.
/// @param includeFiles whether files are shown too.
/// @param newDialogStyle whether the picker can be resized and makes folders.
/// @return the folder's path; empty when the user cancels, and after a failure, which is logged
///         under "FolderBrowser:GetFolder".
std::string GetFolder(const Application& application, FolderChooser& chooser,
                      const std::string& initialFolder, const std::string& title, bool includeFiles,
                      bool newDialogStyle);

}  // namespace marlo
