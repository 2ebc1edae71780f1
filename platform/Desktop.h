#pragma once

#include <optional>
#include <string>
#include <system_error>

#include "platform/FileSystem.h"

namespace marlo::platform {

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
};

}  // namespace marlo::platform
