#include "platform/linux/LinuxClock.h"

#include <array>

namespace marlo::platform {

namespace {

std::string Format(const std::tm& moment, const char* format, locale_t locale) {
    std::array<char, 128> text{};
    const std::size_t length = strftime_l(text.data(), text.size(), format, &moment, locale);
    return {text.data(), length};
}

}  // namespace

LinuxClock::LinuxClock() : locale_(newlocale(LC_TIME_MASK, "", nullptr)) {
    // A locale that is named in the environment but not installed is common on servers.
    if (locale_ == nullptr)
        locale_ = newlocale(LC_TIME_MASK, "C", nullptr);
}

LinuxClock::~LinuxClock() {
    freelocale(locale_);
}

std::tm LinuxClock::Now() const {
    const std::time_t now = std::time(nullptr);
    std::tm moment{};
    localtime_r(&now, &moment);
    return moment;
}

std::string LinuxClock::TimeText(const std::tm& moment) const {
    return Format(moment, "%X", locale_);
}

std::string LinuxClock::ShortDateText(const std::tm& moment) const {
    return Format(moment, "%x", locale_);
}

}  // namespace marlo::platform
