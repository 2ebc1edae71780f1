#include "dialogs/FileBrowser.h"

#include <algorithm>
#include <utility>

#include "core/ErrorLog.h"
#include "core/RunTimeError.h"

namespace marlo {

namespace {

std::string UpToNul(std::string_view text) {
    return std::string(text.substr(0, text.find('\0')));
}

std::string StripTerminator(const Application& application, std::string_view text) {
    std::string stripped;
    RunGuarded(application, "FileBrowser:StripTerminator", [&] { stripped = UpToNul(text); });
    return stripped;
}

std::string StrZToStr(const Application& application, std::string_view text) {
    std::string stripped;
    RunGuarded(application, "FileBrowser:StrZToStr", [&] { stripped = UpToNul(text); });
    return stripped;
}

/// @return the record with its file and title cut; an empty one after a failure.
OpenFileName StripFileStruct(const Application& application, const OpenFileName& record) {
    OpenFileName stripped;
    RunGuarded(application, "FileBrowser:StripFileStruct", [&] {
        OpenFileName copy = record;
        copy.file = StripTerminator(application, record.file);
        copy.fileTitle = StrZToStr(application, record.fileTitle);
        stripped = std::move(copy);
    });
    return stripped;
}

std::string PlatformFilter(std::string filter) {
    std::replace(filter.begin(), filter.end(), '|', '\0');
    std::replace(filter.begin(), filter.end(), ':', '\0');
    return filter.append(2, '\0');
}

std::string Buffer(const std::string& text) {
    if (text.size() > OpenFileName::kBufferSize)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    std::string buffer = text;
    buffer.resize(OpenFileName::kBufferSize, '\0');
    return buffer;
}

void StoreChoice(const Application& application, const OpenFileName& record, FileRequest& request) {
    OpenFileName stripped = StripFileStruct(application, record);
    request.fileName = std::move(stripped.file);
    request.fileTitle = std::move(stripped.fileTitle);
    request.flags = record.flags;
    request.filterIndex = record.filterIndex;
}

void StoreCancel(FileRequest& request) {
    request.fileName.clear();
    request.fileTitle.clear();
    request.filter.clear();
    request.filterIndex = -1;
}

bool VBGetOpenFileName(const Application& application, FileChooser& chooser,
                       const std::string& filter, FileRequest& request) {
    bool isChosen = false;
    RunGuarded(application, "FileBrowser:VBGetOpenFileName", [&] {
        OpenFileName record{.filter = PlatformFilter(filter),
                            .filterIndex = request.filterIndex,
                            .file = Buffer(request.fileName),
                            .fileTitle = Buffer(request.fileTitle),
                            .initialFolder = request.initialFolder,
                            .title = request.dialogTitle,
                            .flags = OpenFileName::kFileMustExist | OpenFileName::kHideReadOnly};
        isChosen = chooser.GetOpenFileName(record);
        if (isChosen)
            StoreChoice(application, record, request);
        else
            StoreCancel(request);
    });
    return isChosen;
}

}  // namespace

bool ShowOpenDialog(const Application& application, FileChooser& chooser, FileRequest& request) {
    bool isChosen = false;
    RunGuarded(application, "FileBrowser:ShowOpenDialog", [&] {
        const std::string filter = request.filter.empty() ? "All Files|*.*" : request.filter;
        isChosen = VBGetOpenFileName(application, chooser, filter, request);
    });
    return isChosen;
}

std::string FilterLookup(const Application& application, std::string_view filter,
                         std::int32_t position) {
    std::string entry;
    RunGuarded(application, "FileBrowser:FilterLookup", [&] {
        for (std::int32_t i = 1; i <= position; ++i) {
            entry = UpToNul(filter);
            // An empty text ends the filter, whatever stands behind.
            if (entry.empty())
                return;
            filter.remove_prefix(std::min(entry.size() + 1, filter.size()));
        }
    });
    return entry;
}

}  // namespace marlo
