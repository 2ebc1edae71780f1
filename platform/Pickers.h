#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace marlo::platform {

enum class BrowseMessage {
    Initialized,       ///< the folder picker is about to be shown
    SelectionChanged,  ///< another item is selected in it
};

/// A folder picker on the screen.
class OpenFolderPicker {
  public:
    virtual ~OpenFolderPicker() = default;

    virtual void SetSelection(const std::string& folder) = 0;
    virtual void SetStatusText(const std::string& text) = 0;
    /// The path of the selected item; empty for one that is not in the file system.
    virtual std::string SelectedPath() const = 0;
};

/// What a folder picker is asked to show, in the system's own terms.
struct FolderRequest {
    static constexpr std::uint32_t kOnlyFolders = 0x1;  ///< nothing but real folders
    static constexpr std::uint32_t kStatusText = 0x4;   ///< the selected folder is shown as text
    static constexpr std::uint32_t kNewStyle = 0x40;
    static constexpr std::uint32_t kFilesToo = 0x4000;

    std::string title{};
    std::string initialFolder{};  ///< selected at first; empty for none
    std::uint32_t flags = 0;
    /// Told what happens in the picker, where it tells that. It throws nothing.
    std::function<void(BrowseMessage, OpenFolderPicker&)> callback{};
};

/// The system's own record of a file to open.
struct OpenFileName {
    static constexpr std::uint32_t kHideReadOnly = 0x4;
    static constexpr std::uint32_t kFileMustExist = 0x1000;
    static constexpr std::size_t kBufferSize = 260;  ///< bytes

    std::string filter;  ///< descriptions and patterns in turn, a NUL behind each, two at the end
    std::int32_t filterIndex = 0;  ///< 1-based
    std::string file;              ///< `kBufferSize` bytes, padded with NULs
    std::string fileTitle;         ///< the same
    std::string initialFolder;
    std::string title;
    std::uint32_t flags = 0;
};

// The system's own pickers, where it has such; the toolkit's serve elsewhere. To be called when the
// toolkit is running, on its thread.

/// Lets the user choose a folder. Selecting the initial folder is up to the callback.
/// @param owner the system's own handle of the window that the picker is shown over.
/// @return the path chosen, as it stands in the system's buffer: a NUL ends it, whatever stands
///         behind; nothing when the user cancels.
std::optional<std::string> ChooseFolder(void* owner, const FolderRequest& request);

/// Lets the user choose a file to open, and fills the record in with it. The program's working
/// folder stays what it is.
/// @return false when the user cancels, and when the system refuses to show the picker.
bool ChooseFile(void* owner, OpenFileName& record);

}  // namespace marlo::platform
