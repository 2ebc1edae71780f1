#include "app/gui/Pickers.h"

#include <system_error>
#include <wx/dirdlg.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/utils.h>

#include "app/gui/TextConversion.h"
#include "platform/FileSystem.h"

namespace marlo::gui {

namespace {

constexpr const char* kAllFiles = "All Files|*";

/// The toolkit's own form of a filter: descriptions and patterns in turn, with "|" between.
wxString WildcardOf(const Application& application, const std::string& filter) {
    wxString wildcard;
    for (std::int32_t position = 1;; position += 2) {
        const std::string description = FilterLookup(application, filter, position);
        const std::string pattern = FilterLookup(application, filter, position + 1);
        if (description.empty() || pattern.empty())
            return wildcard + kAllFiles;
        wildcard += Shown(description) + "|" + Shown(pattern) + "|";
    }
}

/// The text in a buffer that is padded with NULs.
std::string TextIn(const std::string& buffer) {
    return buffer.substr(0, buffer.find('\0'));
}

void PutInto(std::string& buffer, const std::string& text) {
    buffer = text;
    buffer.resize(std::max(text.size() + 1, OpenFileName::kBufferSize), '\0');
}

}  // namespace

std::optional<std::string> FolderPicker::ChooseFolder(const FolderRequest& request) {
    long style = wxDD_DIR_MUST_EXIST;
    if ((request.flags & FolderRequest::kNewStyle) != 0)
        style |= wxRESIZE_BORDER;
    // Some choosers begin with the files used last where there is no such folder, and there no
    // folder can be chosen.
    std::error_code error;
    const wxString start = platform::IsFolder(request.initialFolder, error)
                               ? ToolkitPath(request.initialFolder)
                               : wxGetHomeDir();
    wxDirDialog dialog(owner_, Shown(request.title), start, style);
    if (dialog.ShowModal() != wxID_OK)
        return std::nullopt;
    return PathOf(dialog.GetPath());
}

bool FilePicker::GetOpenFileName(OpenFileName& record) {
    const wxFileName proposed(ToolkitPath(TextIn(record.file)));
    const wxString folder =
        record.initialFolder.empty() ? proposed.GetPath() : ToolkitPath(record.initialFolder);
    long style = wxFD_OPEN;
    if ((record.flags & OpenFileName::kFileMustExist) != 0)
        style |= wxFD_FILE_MUST_EXIST;
    wxFileDialog dialog(owner_, Shown(record.title), folder, proposed.GetFullName(),
                        WildcardOf(application_, record.filter), style);
    if (record.filterIndex > 0)
        dialog.SetFilterIndex(record.filterIndex - 1);
    if (dialog.ShowModal() != wxID_OK)
        return false;
    PutInto(record.file, PathOf(dialog.GetPath()));
    PutInto(record.fileTitle, PathOf(dialog.GetFilename()));
    record.filterIndex = dialog.GetFilterIndex() + 1;
    return true;
}

}  // namespace marlo::gui
