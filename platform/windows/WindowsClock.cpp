#include "platform/windows/WindowsClock.h"

#include <array>

#include "platform/windows/System.h"
#include "platform/windows/SystemTime.h"

namespace marlo::platform {

namespace {

/// @param length what the routine returned: the characters of the text with its NUL.
std::string TextOf(const std::array<char, 128>& text, int length) {
    return length == 0 ? std::string() : std::string(text.data());
}

}  // namespace

std::tm WindowsClock::Now() const {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return MomentOf(now);
}

std::string WindowsClock::TimeText(const std::tm& moment) const {
    const SYSTEMTIME time = SystemTimeOf(moment);
    std::array<char, 128> text{};
    const int length = GetTimeFormatA(LOCALE_USER_DEFAULT, 0, &time, nullptr, text.data(),
                                      static_cast<int>(text.size()));
    return TextOf(text, length);
}

std::string WindowsClock::ShortDateText(const std::tm& moment) const {
    const SYSTEMTIME date = SystemTimeOf(moment);
    std::array<char, 128> text{};
    const int length = GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &date, nullptr,
                                      text.data(), static_cast<int>(text.size()));
    return TextOf(text, length);
}

}  // namespace marlo::platform
