#include "ui/SaveList.h"

#include <system_error>

#include "core/RunTimeError.h"
#include "core/Text.h"
#include "platform/File.h"
#include "platform/FileSystem.h"
#include "reports/ListPage.h"

namespace marlo {

namespace {

bool IsPage(const std::string& path) {
    const std::string upper = UpperCaseUtf8(path);
    return upper.ends_with(".HTML") || upper.ends_with(".HTM");
}

void Write(const std::string& text, const std::string& path) {
    const std::string staging = path + ".new";
    std::error_code error;
    {
        auto file = platform::File::OpenExclusively(staging, error);
        ThrowOnPath(error);
        file.Write(text, error);
        if (!error)
            file.Flush(error);
    }
    if (!error)
        platform::MoveIntoPlace(staging, path, error);
    if (!error)
        return;
    std::error_code ignored;
    platform::RemoveFile(staging, ignored);
    ThrowOnPath(error);
}

}  // namespace

bool SaveList(const ResultPane& pane, const std::string& title, const std::string& path) {
    const bool isSaved = RunGuarded(pane.application, "SaveList", [&] {
        Write(IsPage(path) ? ListAsHtml(pane.lstSongs, SortedColumn(pane), title,
                                        pane.application.clock.Now())
                           : ListAsCsv(pane.lstSongs),
              path);
    });
    if (!isSaved)
        pane.window.ShowMessage(
            {.text = "The list cannot be saved as " + path, .icon = MessageIcon::Exclamation});
    return isSaved;
}

}  // namespace marlo
