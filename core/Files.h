#pragma once

#include <string>
#include <string_view>

#include "core/Application.h"
#include "core/MainWindow.h"
#include "platform/File.h"

namespace marlo {

/// Whether a file, not a folder, exists at `path`. A failure to find out counts as no, and is
/// logged under "FileExists: <path>".
bool FileExists(const Application& application, const std::string& path);

/// Deletes a file under the application folder, and as long as it cannot be deleted asks the user
/// to close whatever program holds it. Errors are ignored; a failed deletion is reported only
/// through the question.
///
/// @param relativePath the file, with a "\" in front (see `ApplicationPath`).
/// @param answer receives the last button pressed; stays as it is when nothing was asked.
void AskCloseFileInUse(const Application& application, MainWindow& window,
                       std::string_view relativePath, MessageAnswer& answer);

/// A new version of a file under the application folder, written beside it under another name
/// and moved into place when it is complete. Whatever ends the program, the file is the whole old
/// one or the whole new one. A version that is not moved into place is deleted.
class StagedFile {
  public:
    /// Starts a new version.
    /// @param relativePath the file, with a "\" in front (see `ApplicationPath`).
    /// @throws RunTimeError when the new version cannot be created; "Permission denied" also when
    ///         another running program is writing one.
    StagedFile(const Application& application, std::string_view relativePath);
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;
    StagedFile(StagedFile&&) = delete;
    StagedFile& operator=(StagedFile&&) = delete;
    ~StagedFile();

    /// Writes `text` and the line end CR LF.
    /// @throws RunTimeError when the disk is full or fails.
    void WriteLine(std::string_view text);

    /// Takes the old file's place. As long as the old file cannot be replaced, asks the user to
    /// close whatever program holds it, with the same question as `AskCloseFileInUse`.
    /// @return false when the user cancelled; the old file is then as it was.
    /// @throws RunTimeError when something else than a file in use is in the way.
    bool MoveIntoPlace(MainWindow& window);

  private:
    void WriteOut();

    std::string path_;
    std::string stagingPath_;
    platform::File file_;
    std::string buffer_;
    bool inPlace_ = false;
};

}  // namespace marlo
