// The two conversions of the dates in the result list.

#include <algorithm>

#include "fuzz/Sandbox.h"
#include "reports/DateText.h"

using namespace marlo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Sandbox& sandbox = fuzz::CleanSandbox();
    const std::string text(fuzz::TextOf(data, size));
    UnFormatDate(sandbox.application, text);
    FormatDate(sandbox.application, text);

    // And a date that there is.
    if (size < 7)
        return 0;
    std::tm moment{};
    moment.tm_year = 70 + data[0];
    moment.tm_mon = data[1] % 12;
    moment.tm_mday = 1 + data[2] % 31;
    moment.tm_hour = data[3] % 24;
    moment.tm_min = data[4] % 60;
    moment.tm_sec = data[5] % 60;
    const std::string digits = FormatDate(sandbox.application, GeneralDate(moment));
    constexpr std::size_t length = 14;
    fuzz::Require(digits.size() == length, "a date has fourteen digits");
    fuzz::Require(
        std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; }),
        "they are digits");
    fuzz::Require(!UnFormatDate(sandbox.application, digits).empty(), "they are a date again");
    return 0;
}
