#pragma once

#include <map>

#include "platform/Desktop.h"

namespace marlo::platform {

/// The desktop of a Windows machine: its shell.
class WindowsDesktop final : public Desktop {
  public:
    std::string FileTypeDescription(const std::string& path, FileKind kind,
                                    std::error_code& error) const override;
    std::optional<std::string> ProgramForExtension(const std::string& extension) const override;
    std::optional<ShellIcon> SmallIcon(const std::string& path) const override;
    int ShellExecute(const ShellRequest& request) const override;
    std::string ShortPath(const std::string& path) const override;

  private:
    /// By extension, with its dot: asking the shell takes longer than listing a folder.
    mutable std::map<std::string, std::string, std::less<>> descriptions_;
};

}  // namespace marlo::platform
