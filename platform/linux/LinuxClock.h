#pragma once

#include <clocale>

#include "platform/Clock.h"

namespace marlo::platform {

/// The system clock, with dates and times in the form of the user's locale.
class LinuxClock final : public Clock {
  public:
    LinuxClock();
    LinuxClock(const LinuxClock&) = delete;
    LinuxClock& operator=(const LinuxClock&) = delete;
    LinuxClock(LinuxClock&&) = delete;
    LinuxClock& operator=(LinuxClock&&) = delete;
    ~LinuxClock() override;

    std::tm Now() const override;
    std::string TimeText(const std::tm& moment) const override;
    std::string ShortDateText(const std::tm& moment) const override;

  private:
    locale_t locale_;
};

}  // namespace marlo::platform
