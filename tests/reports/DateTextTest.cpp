#include <gtest/gtest.h>

#include "reports/DateText.h"
#include "tests/support/ApplicationTest.h"

namespace marlo {
namespace {

std::tm Moment(int year, int month, int day, int hour, int minute, int second) {
    std::tm moment{};
    moment.tm_year = year - 1900;
    moment.tm_mon = month - 1;
    moment.tm_mday = day;
    moment.tm_hour = hour;
    moment.tm_min = minute;
    moment.tm_sec = second;
    return moment;
}

class DateTextTest : public test::ApplicationTest {
  protected:
    std::string Format(const std::string& text) const { return FormatDate(application, text); }
    std::string UnFormat(const std::string& text) const { return UnFormatDate(application, text); }

    /// What a cell shows after its column was sorted.
    std::string Sorted(const std::string& text) const { return UnFormat(Format(text)); }
};

TEST_F(DateTextTest, AMomentIsShownInTheGeneralForm) {
    EXPECT_EQ(GeneralDate(Moment(2006, 10, 28, 15, 45, 12)), "10/28/2006 3:45:12 PM");
    EXPECT_EQ(GeneralDate(Moment(2006, 3, 1, 1, 5, 0)), "3/1/2006 1:05:00 AM");
}

TEST_F(DateTextTest, MidnightAndNoonAreTwelveAndHaveTheirTime) {
    EXPECT_EQ(GeneralDate(Moment(2006, 1, 2, 0, 0, 0)), "1/2/2006 12:00:00 AM");
    EXPECT_EQ(GeneralDate(Moment(2006, 1, 2, 12, 0, 9)), "1/2/2006 12:00:09 PM");
    EXPECT_EQ(GeneralDate(Moment(2006, 1, 2, 23, 59, 59)), "1/2/2006 11:59:59 PM");
}

TEST_F(DateTextTest, ADateBecomesFourteenDigits) {
    EXPECT_EQ(Format("10/28/2006 3:45:12 PM"), "20061028154512");
    EXPECT_EQ(Format("3/1/2006 1:05:00 AM"), "20060301010500");
}

TEST_F(DateTextTest, NoonBecomesHour24AndMidnightHour12) {
    EXPECT_EQ(Format("12/20/2006 12:30:00 PM"), "20061220243000");
    EXPECT_EQ(Format("12/20/2006 12:30:00 AM"), "20061220123000");
    EXPECT_EQ(Sorted("12/20/2006 12:30:00 PM"), "12/2/2006 12:30:00 PM");
}

TEST_F(DateTextTest, OnlyAnUpperCasePMCounts) {
    EXPECT_EQ(Format("1/2/2006 3:00:00 pm"), "20060102030000");
}

TEST_F(DateTextTest, EveryZeroOfMonthDayAndMorningHourIsRemoved) {
    EXPECT_EQ(UnFormat("20060310100500"), "3/1/2006 1:05:00 AM");
    EXPECT_EQ(Sorted("10/5/2006 10:07:09 AM"), "1/5/2006 1:07:09 AM");
    EXPECT_EQ(Sorted("10/20/2006 1:00:00 AM"), "1/2/2006 1:00:00 AM");
    EXPECT_EQ(Sorted("10/30/2006 10:00:00 PM"), "1/3/2006 10:00:00 PM")
        << "the hours of the afternoon are counted, and keep theirs";
}

TEST_F(DateTextTest, FourteenDigitsBecomeADate) {
    EXPECT_EQ(UnFormat("20061028154512"), "1/28/2006 3:45:12 PM");
    EXPECT_EQ(UnFormat("20061231000000"), "12/31/2006 :00:00 AM") << "hour 0 is all zeros";
    EXPECT_EQ(Log(), "");
}

TEST_F(DateTextTest, ADateWithoutATimeIsEmptiedAndComesBackAsItsSeparators) {
    EXPECT_EQ(Format("10/28/2006"), "");
    EXPECT_EQ(Log(), LogLine("FormatDate:10/28/2006", 5, "Invalid procedure call"));
    EXPECT_EQ(UnFormat(""), "// :: AM");
    EXPECT_EQ(Log(), LogLine("FormatDate:10/28/2006", 5, "Invalid procedure call"));
}

TEST_F(DateTextTest, ATextThatIsNoDateIsLoggedWithItself) {
    for (const std::string text : {"", "x", "1/2", "1/2/2006 3", "1/2/2006 3:04"}) {
        EXPECT_EQ(Format(text), "") << text;
        EXPECT_TRUE(Log().ends_with(LogLine("FormatDate:" + text, 5, "Invalid procedure call")));
    }
}

TEST_F(DateTextTest, PartsThatAreNoNumbersCountAsZero) {
    EXPECT_EQ(Format("x/y/z h:m:s"), "z000000ms") << "month, day and hour are put in order";
    EXPECT_EQ(Format("-1/2/2006 1:00:00 AM"), "20060002010000");
    EXPECT_EQ(Format(" -1/inf/2006 nan:00:00 AM"), "20060000000000");
}

TEST_F(DateTextTest, PartsOfANumberAreRounded) {
    EXPECT_EQ(Format("1.6/9.4/2006 1.4:00:00 AM"), "20060209010000");
    EXPECT_EQ(Format("9.6/9/2006 9.6:00:00 AM"), "20069.609100000") << "10 keeps its text";
}

TEST_F(DateTextTest, PartsAreCountedInCharacters) {
    EXPECT_EQ(Format("1/2/2006 3:04:éé AM"),
              "2006010203"
              "04éé");
    EXPECT_EQ(Format("1/2/2006 3:04:\xE9\xE9 AM"),
              "2006010203"
              "04éé");
    EXPECT_EQ(UnFormat("éééé1122334455"), "11/22/éééé 21:44:55 PM");
}

TEST_F(DateTextTest, LongPartsStay) {
    EXPECT_EQ(Format("123/456/20067 89:1234:5678 PM"), "20067123456101123456");
    EXPECT_EQ(Format("1/2/3 99999999999999999999:4:5"), "3010210000000000000000000045")
        << "rounded as far as a number is precise";
}

TEST_F(DateTextTest, AShorterTextGivesShorterParts) {
    EXPECT_EQ(UnFormat("2006"), "//2006 :: AM");
    EXPECT_EQ(UnFormat("2006102"), "1/2/2006 :: AM");
    EXPECT_EQ(UnFormat("200610281"), "1/28/2006 1:: AM");
}

TEST_F(DateTextTest, SpacesAroundAPartAreTrimmedBehindTheZeros) {
    EXPECT_EQ(UnFormat("20060 1 1 000"), "/1/2006 1:00:0 AM");
}

}  // namespace
}  // namespace marlo
