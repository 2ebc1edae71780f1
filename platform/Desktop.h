#pragma once

#include <string>
#include <system_error>

namespace marlo::platform {

/// What the desktop's shell knows about files.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// The shell's description of a file's type, as a file manager shows it.
    ///
    /// Where the desktop has no such descriptions, a regular file whose extension is `.cpr`,
    /// without regard to case, is a "CPR File".
    ///
    /// @param path a file's path.
    /// @param error cleared, or set when the file is there but cannot be asked about.
    /// @return the description; empty for anything that is not a regular file or has no
    ///         description.
    virtual std::string FileTypeDescription(const std::string& path,
                                            std::error_code& error) const = 0;
};

}  // namespace marlo::platform
