#pragma once

#include "platform/Desktop.h"

namespace marlo::platform {

/// The desktops of Linux have no descriptions of their own for projects and libraries, so these get
/// the ones that another system's shell would show.
class LinuxDesktop final : public Desktop {
  public:
    std::string FileTypeDescription(const std::string& path, FileKind kind,
                                    std::error_code& error) const override;

    /// By GIO, which knows the desktop's mimeapps.list and .desktop files; empty where it is not
    /// installed.
    std::optional<std::string> ProgramForExtension(const std::string& extension) const override;

    /// By GIO; nothing can be opened or started where it is not installed.
    int ShellExecute(const ShellRequest& request) const override;

    std::string ShortPath(const std::string& path) const override;

    /// By GIO, for the programs that have a .desktop file.
    std::optional<ShellIcon> SmallIcon(const std::string& path) const override;
};

}  // namespace marlo::platform
