#pragma once

#include <ctime>
#include <string>

namespace marlo::platform {

/// The machine's calendar and clock, in local time.
class Clock {
  public:
    virtual ~Clock() = default;

    /// The current local date and time.
    virtual std::tm Now() const = 0;

    /// `moment`'s time of day in the system's time format, for example "03:10:22".
    virtual std::string TimeText(const std::tm& moment) const = 0;

    /// `moment`'s date in the system's short date format, for example "15/11/2026".
    virtual std::string ShortDateText(const std::tm& moment) const = 0;
};

}  // namespace marlo::platform
