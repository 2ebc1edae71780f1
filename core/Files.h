#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "core/Application.h"
#include "core/LineWriter.h"
#include "core/MainWindow.h"
#include "core/StagedPath.h"

namespace marlo {

/// Whether a file, not a folder, exists at `path`. A failure to find out counts as no, and is
/// logged under "FileExists: <path>".
bool FileExists(const Application& application, const std::string& path);

/// Deletes a file under the application folder, and as long as it cannot be deleted asks the user
/// to close whatever program holds it. Errors are ignored, those of the question, too; a failed
/// deletion is reported only through the question.
///
/// @param relativePath the file, with a "\" in front (see `ApplicationPath`).
/// @param answer receives the last button pressed, or Cancel if the question fails; unchanged if
///        nothing is asked.
void AskCloseFileInUse(const Application& application, MainWindow& window,
                       std::string_view relativePath, MessageAnswer& answer);

/// A new version of a file under the application folder, written beside it under another name
/// and moved into place when it is complete. Whatever ends the program, the file is the whole old
/// one or the whole new one. A version that is not moved into place is deleted.
///
/// As long as the old file is there and nothing may be put in its place, the user is asked to close
/// whatever program holds it, with the same question as `AskCloseFileInUse`. `Create` and
/// `MoveIntoPlace` return false when the user cancels; the old file is then unchanged. If the
/// question itself fails, the exception reaches the caller.
class StagedFile {
  public:
    /// @param relativePath the file, with a "\" in front (see `ApplicationPath`).
    StagedFile(const Application& application, MainWindow& window, std::string_view relativePath);
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;
    StagedFile(StagedFile&&) = delete;
    StagedFile& operator=(StagedFile&&) = delete;
    ~StagedFile() = default;

    /// Creates the new version. Asks while that is denied, also because another running program
    /// is writing one.
    /// @throws RunTimeError when it cannot be created for another reason, there is no old file to
    ///         ask about, or a folder is in the file's place.
    bool Create();

    /// Writes the new version's lines.
    LineWriter& Lines() { return writer_; }

    /// Takes the old file's place when all of it is on the disk. Asks while that is denied.
    /// @throws RunTimeError when it cannot for another reason, such as a full disk or something
    ///         else than a file in the way, or there is no old file to ask about.
    bool MoveIntoPlace();

    /// The same with as much as could be written.
    bool MoveWhatIsWrittenIntoPlace();

  private:
    bool Try(const std::function<void(std::error_code& error)>& attempt);

    MainWindow& window_;
    std::string path_;
    LineWriter writer_;
    std::optional<StagedPath> staged_;  ///< once there is a new version
};

}  // namespace marlo
