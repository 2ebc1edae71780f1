#pragma once

#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "platform/FileSystem.h"

namespace marlo::platform {

/// Asks the shell to do something with a file, folder or program.
struct ShellRequest {
    std::string verb = "Open";
    std::string file{};        ///< a document, a program, or "explorer.exe", by its full path; or
                               ///< the address of a web page
    std::string parameters{};  ///< a program's one argument, or the folder to explore
    bool isProgram = false;    ///< `file` was chosen as a program; anything else is never started
    std::string folder = "0";  ///< the working folder; one that does not exist does not count
    int showState = kShowNormal;

    static constexpr int kShowNormal = 1;
};

/// A file's icon: drawn where the shell does that, else a name in the desktop's icon theme or the
/// full path of a picture file.
struct ShellIcon {
    std::string name{};
    int width = 0;  ///< of the drawn icon, in pixels
    int height = 0;
    std::vector<unsigned char> pixels{};  ///< row by row: red, green, blue and opacity of each
};

/// The shell's answers up to this one are failures.
inline constexpr int kLastShellFailure = 32;

/// What the desktop's shell knows about files.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// The shell's description of a file's type, as a file manager shows it.
    ///
    /// Where the desktop has no such descriptions, a regular file has one by its extension, without
    /// regard to case: `.cpr` is a "CPR File", `.dll` an "Application Extension".
    ///
    /// @param path a file's path.
    /// @param kind what is known of the file; a regular one is not looked at any more.
    /// @param error cleared, or set when the file is there but cannot be asked about.
    /// @return the description; empty for anything that is not a regular file or has no
    ///         description.
    virtual std::string FileTypeDescription(const std::string& path, FileKind kind,
                                            std::error_code& error) const = 0;

    /// The program that opens files with an extension, by the desktop's own associations.
    /// @param extension with its dot, for example ".csv".
    /// @return the full path of an executable, empty when no program is known; nothing at all
    ///         where the registry holds the associations.
    virtual std::optional<std::string> ProgramForExtension(const std::string& extension) const = 0;

    /// The small icon that the desktop shows for a file.
    /// @param path a program's or document's full path.
    /// @return nothing where the desktop knows none.
    virtual std::optional<ShellIcon> SmallIcon(const std::string& path) const = 0;

    /// Starts a program, or opens a document, folder or web page with the program for it.
    ///
    /// Where the shell has no verbs, they, the working folder and the show state do not count, and
    /// "explorer.exe" stands for the desktop's file manager. Where it tells programs from documents
    /// by itself, `isProgram` does not count. No part of the request is parsed as a command.
    ///
    /// @return more than `kLastShellFailure` when it was done, else a number that tells why not.
    virtual int ShellExecute(const ShellRequest& request) const = 0;

    /// The short (8.3) form of a path where the platform has one, else the path itself.
    /// @return "" for a path that does not exist.
    virtual std::string ShortPath(const std::string& path) const = 0;
};

}  // namespace marlo::platform
