#pragma once

#include <ctime>

#include "platform/windows/System.h"

namespace marlo::platform {

inline constexpr int kFirstYear = 1900;  // of the C library's calendar

inline std::tm MomentOf(const SYSTEMTIME& time) {
    std::tm moment{};
    moment.tm_year = time.wYear - kFirstYear;
    moment.tm_mon = time.wMonth - 1;
    moment.tm_mday = time.wDay;
    moment.tm_wday = time.wDayOfWeek;
    moment.tm_hour = time.wHour;
    moment.tm_min = time.wMinute;
    moment.tm_sec = time.wSecond;
    return moment;
}

inline SYSTEMTIME SystemTimeOf(const std::tm& moment) {
    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(moment.tm_year + kFirstYear);
    time.wMonth = static_cast<WORD>(moment.tm_mon + 1);
    time.wDay = static_cast<WORD>(moment.tm_mday);
    time.wDayOfWeek = static_cast<WORD>(moment.tm_wday);
    time.wHour = static_cast<WORD>(moment.tm_hour);
    time.wMinute = static_cast<WORD>(moment.tm_min);
    time.wSecond = static_cast<WORD>(moment.tm_sec);
    return time;
}

}  // namespace marlo::platform
