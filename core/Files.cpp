#include "core/Files.h"

#include <system_error>
#include <utility>

#include "core/ErrorLog.h"
#include "core/RunTimeError.h"
#include "platform/File.h"
#include "platform/FileSystem.h"

namespace marlo {

namespace {

MessageAnswer AskToClose(MainWindow& window, const std::string& path) {
    return window.ShowMessage({.text = "The file " + path + " is being used by another program." +
                                       " Close that program and click Ok to continue",
                               .buttons = MessageButtons::OkCancel,
                               .icon = MessageIcon::Exclamation,
                               .title = ""});
}

using Attempt = std::function<void(std::error_code& error)>;

/// Repeats `attempt`, which deletes or replaces the file at `path`, until it succeeds or the user
/// cancels.
/// @param answer receives the last button pressed, or Cancel if the question fails; unchanged if
///        nothing is asked.
void AskUntilFree(MainWindow& window, const std::string& path, MessageAnswer& answer,
                  const Attempt& attempt) {
    for (;;) {
        std::error_code error;
        attempt(error);
        if (!error)
            return;
        answer = MessageAnswer::Cancel;  // if the question fails
        answer = AskToClose(window, path);
        if (answer == MessageAnswer::Cancel)
            return;
    }
}

bool IsDenied(const std::error_code& error) {
    return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
           error == std::errc::read_only_file_system || error == std::errc::device_or_resource_busy;
}

}  // namespace

bool FileExists(const Application& application, const std::string& path) {
    bool exists = false;
    RunGuarded(
        application, [&] { return "FileExists: " + path; },
        [&] {
            std::error_code error;
            exists = platform::IsFile(path, error);
            ThrowOn(error);
        });
    return exists;
}

void AskCloseFileInUse(const Application& application, MainWindow& window,
                       std::string_view relativePath, MessageAnswer& answer) {
    IgnoreFailures([&] {
        const std::string path = ApplicationPath(application, relativePath);
        std::error_code error;
        if (platform::IsFile(path, error))
            AskUntilFree(window, path, answer,
                         [&](std::error_code& failure) { platform::RemoveFile(path, failure); });
    });
}

StagedFile::StagedFile(const Application& application, MainWindow& window,
                       std::string_view relativePath)
    : window_(window), path_(ApplicationPath(application, relativePath)) {}

/// Makes an attempt, and while that is denied and an old file is there repeats it until the user
/// cancels.
/// @return whether it succeeded.
/// @throws RunTimeError after another failure.
bool StagedFile::Try(const Attempt& attempt) {
    std::error_code error;
    if (platform::IsFile(path_, error)) {
        MessageAnswer answer = MessageAnswer::None;
        AskUntilFree(window_, path_, answer, [&](std::error_code& failure) {
            attempt(failure);
            if (!IsDenied(failure))
                ThrowOnPath(failure);
        });
        return answer != MessageAnswer::Cancel;
    }
    attempt(error);
    ThrowOnPath(error);
    return true;
}

bool StagedFile::Create() {
    std::error_code ignored;
    if (platform::IsFolder(path_, ignored))
        throw RunTimeError(ErrorNumber::PathFileAccess);
    std::string stagingPath = path_ + ".new";
    return Try([&](std::error_code& error) {
        auto file = platform::File::OpenExclusively(stagingPath, error);
        if (error)
            return;
        // Nothing from here on takes memory, so the file is not left behind for want of it.
        staged_.emplace(std::move(stagingPath));
        writer_ = LineWriter(std::move(file));
    });
}

bool StagedFile::MoveIntoPlace() {
    writer_.FlushToDisk();
    return MoveWhatIsWrittenIntoPlace();
}

bool StagedFile::MoveWhatIsWrittenIntoPlace() {
    return Try([&](std::error_code& error) { staged_->MoveTo(path_, error); });
}

}  // namespace marlo
