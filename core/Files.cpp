#include "core/Files.h"

#include <system_error>

#include "core/ErrorLog.h"
#include "core/RunTimeError.h"
#include "platform/FileSystem.h"

namespace marlo {

namespace {

constexpr std::size_t kWriteSize = std::size_t{256} * 1024;

MessageAnswer AskToClose(MainWindow& window, const std::string& path) {
    return window.ShowMessage({.text = "The file " + path + " is being used by another program." +
                                       " Close that program and click Ok to continue",
                               .buttons = MessageButtons::OkCancel,
                               .icon = MessageIcon::Exclamation,
                               .title = ""});
}

/// Repeats `attempt`, which deletes or replaces the file at `path`, until it succeeds or the user
/// cancels.
/// @return the last attempt's error: none after success.
template <class Attempt>
std::error_code AskUntilFree(MainWindow& window, const std::string& path, MessageAnswer& answer,
                             Attempt attempt) {
    for (;;) {
        std::error_code error;
        attempt(error);
        if (!error)
            return error;
        answer = AskToClose(window, path);
        if (answer == MessageAnswer::Cancel)
            return error;
    }
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
    const std::string path = ApplicationPath(application, relativePath);
    std::error_code error;
    if (platform::IsFile(path, error))
        AskUntilFree(window, path, answer,
                     [&](std::error_code& failure) { platform::RemoveFile(path, failure); });
}

StagedFile::StagedFile(const Application& application, std::string_view relativePath)
    : path_(ApplicationPath(application, relativePath)), stagingPath_(path_ + ".new") {
    std::error_code error;
    file_ = platform::File::OpenExclusively(stagingPath_, error);
    ThrowOnPath(error);
    buffer_.reserve(kWriteSize);
}

StagedFile::~StagedFile() {
    std::error_code ignored;
    if (!inPlace_)
        platform::RemoveFile(stagingPath_, ignored);
}

void StagedFile::WriteLine(std::string_view text) {
    buffer_.append(text).append("\r\n");
    if (buffer_.size() >= kWriteSize)
        WriteOut();
}

void StagedFile::WriteOut() {
    std::error_code error;
    file_.Write(buffer_, error);
    ThrowOn(error);
    buffer_.clear();
}

bool StagedFile::MoveIntoPlace(MainWindow& window) {
    WriteOut();
    std::error_code error;
    file_.Flush(error);
    ThrowOn(error);
    const auto move = [&](std::error_code& failure) {
        platform::MoveIntoPlace(stagingPath_, path_, failure);
    };
    std::error_code ignored;
    MessageAnswer answer = MessageAnswer::None;
    if (platform::IsFile(path_, ignored))
        error = AskUntilFree(window, path_, answer, move);
    else
        move(error);
    inPlace_ = !error;
    if (answer != MessageAnswer::Cancel)
        ThrowOn(error);
    return inPlace_;
}

}  // namespace marlo
