#include "reports/DateText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string_view>

#include "core/ErrorLog.h"
#include "core/RunTimeError.h"
#include "core/Text.h"

namespace marlo {

namespace {

/// The number that the leading digits of a text spell, rounded to a whole one; 0 without any.
double ValueOf(const std::string& text) {
    const std::string_view digits = TrimSpaces(text);
    const bool hasDigits = !digits.empty() && digits.front() >= '0' && digits.front() <= '9';
    return hasDigits ? std::nearbyint(LeadingNumber(digits)) : 0;
}

/// A whole number in decimal.
std::string Decimal(double number) {
    std::array<char, std::numeric_limits<double>::max_exponent10 + 2> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    return {text.data(), end.ptr};
}

/// Takes text in UTF-8 apart from the front.
class Splitter {
  public:
    explicit Splitter(std::string_view rest) : rest_(rest) {}

    /// Takes what stands before the next `mark`, and the mark.
    /// @throws RunTimeError when there is no mark.
    std::string TakeUntil(char mark) {
        const std::size_t end = rest_.find(mark);
        if (end == std::string_view::npos)
            throw RunTimeError(ErrorNumber::InvalidProcedureCall);
        std::string taken(rest_.substr(0, end));
        rest_.remove_prefix(end + 1);
        return taken;
    }

    /// Takes `count` characters, or as many as there are.
    std::string Take(std::size_t count) {
        std::size_t end = 0;
        for (; count > 0 && end < rest_.size(); --count)
            for (++end; end < rest_.size() && platform::ContinuesCharacter(rest_[end]);)
                ++end;
        std::string taken(rest_.substr(0, end));
        rest_.remove_prefix(end);
        return taken;
    }

  private:
    std::string_view rest_;
};

/// A number below 10 with a zero in front of it; any other text as it is.
std::string TwoDigits(const std::string& text) {
    const double value = ValueOf(text);
    return value < 10 ? Decimal(value).insert(0, 1, '0') : text;
}

std::string SortableDate(const std::string& text) {
    Splitter splitter(text);
    const std::string month = splitter.TakeUntil('/');
    const std::string day = splitter.TakeUntil('/');
    const std::string year = splitter.TakeUntil(' ');
    const double hour = ValueOf(splitter.TakeUntil(':')) + (text.ends_with("PM") ? 12 : 0);
    const std::string minutes = splitter.TakeUntil(':');
    const std::string seconds = splitter.Take(2);
    return year + TwoDigits(month) + TwoDigits(day) + TwoDigits(Decimal(hour)) + minutes + seconds;
}

std::string WithoutZeros(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '0'), text.end());
    return std::string(TrimSpaces(text));
}

std::string DisplayDate(const std::string& text) {
    Splitter splitter(text);
    const std::string year = splitter.Take(4);
    const std::string month = splitter.Take(2);
    const std::string day = splitter.Take(2);
    const std::string hourText = splitter.Take(2);
    const std::string minutes = splitter.Take(2);
    const std::string seconds = splitter.Take(2);
    const double hour = ValueOf(hourText);
    const bool isMorning = hour <= 12;
    return WithoutZeros(month) + "/" + WithoutZeros(day) + "/" + year + " " +
           (isMorning ? WithoutZeros(hourText) : Decimal(hour - 12)) + ":" + minutes + ":" +
           seconds + (isMorning ? " AM" : " PM");
}

}  // namespace

std::string GeneralDate(const std::tm& moment) {
    const int hour = moment.tm_hour % 12 == 0 ? 12 : moment.tm_hour % 12;
    std::ostringstream text;
    text << moment.tm_mon + 1 << '/' << moment.tm_mday << '/' << moment.tm_year + 1900 << ' '
         << hour << ':' << std::setfill('0') << std::setw(2) << moment.tm_min << ':' << std::setw(2)
         << moment.tm_sec << (moment.tm_hour < 12 ? " AM" : " PM");
    return text.str();
}

std::string FormatDate(const Application& application, const std::string& text) {
    std::string sortable;
    RunGuarded(
        application, [&] { return "FormatDate:" + text; },
        [&] { sortable = SortableDate(DecodeToUtf8(text)); });
    return sortable;
}

std::string UnFormatDate(const Application& application, const std::string& text) {
    std::string display;
    RunGuarded(
        application, [&] { return "UnFormatDate:" + text; },
        [&] { display = DisplayDate(DecodeToUtf8(text)); });
    return display;
}

}  // namespace marlo
