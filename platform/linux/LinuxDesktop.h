#pragma once

#include "platform/Desktop.h"

namespace marlo::platform {

/// File types by extension: the desktops of Linux have no descriptions of their own for these
/// files, so they get the ones that another system's shell would show.
class LinuxDesktop final : public Desktop {
  public:
    std::string FileTypeDescription(const std::string& path, std::error_code& error) const override;
};

}  // namespace marlo::platform
