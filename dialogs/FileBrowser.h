#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/Application.h"
#include "platform/Pickers.h"

namespace marlo {

/// What a user is asked for, and what was chosen.
struct FileRequest {
    std::string fileName{};        ///< the file that is proposed, then the chosen one's full path
    std::string fileTitle{};       ///< the chosen file's name without its folder
    std::string filter{};          ///< descriptions and patterns in turn, with "|" between them all
    std::int32_t filterIndex = 0;  ///< 1-based; -1 after a cancel
    std::string initialFolder{};
    std::string dialogTitle{};
    std::uint32_t flags = 0;  ///< those that the picker gave back
};

using platform::OpenFileName;

/// The platform's picker of a file to open, shown over the window that owns it.
class FileChooser {
  public:
    virtual ~FileChooser() = default;

    /// Fills the record in with the file chosen.
    /// @return false when the user cancels.
    virtual bool GetOpenFileName(OpenFileName& record) = 0;
};

/// Lets the user choose an existing file.
///
/// A "|" and also a ":" in the filter ends a description or a pattern, so neither can hold one;
/// without a filter, all files are shown. A name or title of more than `OpenFileName::kBufferSize`
/// bytes cannot be handed over: that is a failure, and nothing is shown.
///
/// @param request receives the chosen file; after a cancel its name, title and filter are empty and
///        its index is -1; after a failure it is as it was.
/// @return whether a file was chosen. Failures count as no, and are logged under
///         "FileBrowser:VBGetOpenFileName" and "FileBrowser:ShowOpenDialog"; those of taking the
///         answer over, which leave a text empty, under "FileBrowser:StripFileStruct",
///         "FileBrowser:StripTerminator" and "FileBrowser:StrZToStr".
bool ShowOpenDialog(const Application& application, FileChooser& chooser, FileRequest& request);

/// The `position`th of a filter's texts, 1-based, which have a NUL behind each and two at their
/// end; empty when there are fewer. A failure is logged under "FileBrowser:FilterLookup".
std::string FilterLookup(const Application& application, std::string_view filter,
                         std::int32_t position);

}  // namespace marlo
