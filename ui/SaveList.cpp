#include "ui/SaveList.h"

#include <string_view>
#include <system_error>

#include "core/RunTimeError.h"
#include "core/StagedPath.h"
#include "core/Text.h"
#include "platform/File.h"
#include "reports/ListPage.h"

namespace marlo {

namespace {

bool IsPage(const std::string& path) {
    const std::string upper = UpperCaseUtf8(path);
    return upper.ends_with(".HTML") || upper.ends_with(".HTM");
}

/// Creates a file beside `path`, under a name that nothing else has there.
/// @param staging receives its path.
platform::File CreateBeside(const std::string& path, std::string& staging) {
    std::error_code error;
    staging = path + ".new";
    for (int number = 2;; ++number) {
        auto file = platform::File::CreateNew(staging, error);
        if (error != std::errc::file_exists) {
            ThrowOnPath(error);
            return file;
        }
        staging = path + ".new" + std::to_string(number);
    }
}

void Write(const std::string& text, const std::string& path) {
    std::string staging;
    platform::File file = CreateBeside(path, staging);
    StagedPath staged(staging);
    std::error_code error;
    file.Write(text, error);
    ThrowOnPath(error);
    file.Flush(error);
    ThrowOnPath(error);
    staged.MoveTo(path, error);
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

std::string PagePath(const std::string& path) {
    if (IsPage(path))
        return path;
    constexpr std::string_view otherKind = ".CSV";
    const bool isOtherKind = UpperCaseUtf8(path).ends_with(otherKind);
    return path.substr(0, path.size() - (isOtherKind ? otherKind.size() : 0)) + ".html";
}

}  // namespace marlo
