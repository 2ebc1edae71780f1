#pragma once

#include "platform/Clock.h"

namespace marlo::platform {

/// The clock of a Windows machine; texts in the user's formats.
class WindowsClock final : public Clock {
  public:
    std::tm Now() const override;
    std::string TimeText(const std::tm& moment) const override;
    std::string ShortDateText(const std::tm& moment) const override;
};

}  // namespace marlo::platform
