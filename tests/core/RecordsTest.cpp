#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/Records.h"
#include "tests/support/ApplicationTest.h"

namespace marlo {
namespace {

using Fields = std::vector<std::string>;

class SplitRecordTest : public test::ApplicationTest {};

TEST_F(SplitRecordTest, ThreeQuotedFieldsAreSplit) {
    EXPECT_EQ(SplitRecord(application, R"("a","b","c")", 3), (Fields{"a", "b", "c"}));
    EXPECT_EQ(Log(), "");
}

TEST_F(SplitRecordTest, AMissingFourthFieldIsEmptyAndLogged) {
    EXPECT_EQ(SplitRecord(application, R"("a","b","c")", 4), (Fields{"a", "b", "c", ""}));
    EXPECT_EQ(Log(), LogLine(R"(SplitRecord: "a","b","c" 4)", 5, "Invalid procedure call"));
}

TEST_F(SplitRecordTest, QuotesAreRemovedAndSpacesTrimmed) {
    EXPECT_EQ(SplitRecord(application, R"( "x" ,y)", 2), (Fields{"x", "y"}));
}

TEST_F(SplitRecordTest, SpacesInsideTheQuotesAreTrimmedToo) {
    EXPECT_EQ(SplitRecord(application, R"("VST    "," a b ")", 2), (Fields{"VST", "a b"}));
}

TEST_F(SplitRecordTest, QuotesInTheMiddleOfAFieldAreRemoved) {
    EXPECT_EQ(SplitRecord(application, R"("12"" mix",x)", 2), (Fields{"12 mix", "x"}));
}

TEST_F(SplitRecordTest, ARecordWithoutACommaHasNoFirstField) {
    EXPECT_EQ(SplitRecord(application, "\"alone\"", 1), (Fields{""}));
    EXPECT_EQ(Log(), LogLine("SplitRecord: \"alone\" 1", 5, "Invalid procedure call"));
}

TEST_F(SplitRecordTest, AnEmptyRecordHasNoFirstField) {
    EXPECT_EQ(SplitRecord(application, "", 3), (Fields{"", "", ""}));
    EXPECT_EQ(Log(), LogLine("SplitRecord:  3", 5, "Invalid procedure call"));
}

TEST_F(SplitRecordTest, ACommaInsideQuotesSplitsAsWell) {
    EXPECT_EQ(SplitRecord(application, R"("Chorus, Wide","VST","On")", 3),
              (Fields{"Chorus", "Wide", "VST"}));
}

TEST_F(SplitRecordTest, ACommaAtTheEndGivesAnEmptyLastField) {
    EXPECT_EQ(SplitRecord(application, "a,", 2), (Fields{"a", ""}));
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(SplitRecord(application, "a,", 3), (Fields{"a", "", ""}));
    EXPECT_EQ(Log(), LogLine("SplitRecord: a, 3", 5, "Invalid procedure call"));
}

TEST_F(SplitRecordTest, FieldsBeyondTheCountAreLeftOut) {
    EXPECT_EQ(SplitRecord(application, "a,b,c,d", 2), (Fields{"a", "b"}));
}

TEST_F(SplitRecordTest, NoFieldsAskedForGivesNoneAndLogsNothing) {
    EXPECT_EQ(SplitRecord(application, "a", 0), Fields{});
    EXPECT_EQ(Log(), "");
}

TEST_F(SplitRecordTest, ANegativeCountIsLogged) {
    EXPECT_EQ(SplitRecord(application, "a,b", -1), Fields{});
    EXPECT_EQ(Log(), LogLine("SplitRecord: a,b -1", 9, "Subscript out of range"));
}

TEST_F(SplitRecordTest, BytesAboveAsciiPassThrough) {
    EXPECT_EQ(SplitRecord(application, "\"R\xE9verb\",x", 2), (Fields{"R\xE9verb", "x"}));
}

class RecordFieldsTest : public test::ApplicationTest {
  protected:
    RecordFields fields{application, 2};
};

TEST_F(RecordFieldsTest, FieldsThatNeedNoChangeAreThoseOfTheRecord) {
    const std::string record = "\"a b\",\"c\"";
    fields.Split(record);
    EXPECT_EQ(fields[0], "a b");
    EXPECT_EQ(fields[0].data(), record.data() + 1);
    EXPECT_EQ(fields[1], "c");
}

TEST_F(RecordFieldsTest, EachFieldIsThatOfSplitRecord) {
    for (const std::string record :
         {"\"a\",\"b\"", "a,b", " \" a \" ,\"b\"\"", "\"\",\"", "\"a,\"b", ",", "\"a\"x\",b,c"}) {
        fields.Split(record);
        const auto expected = SplitRecord(application, record, 2);
        EXPECT_EQ(fields[0], expected[0]) << record;
        EXPECT_EQ(fields[1], expected[1]) << record;
    }
}

TEST_F(RecordFieldsTest, AMissingFieldIsEmptyAndNotTheOneOfTheRecordBefore) {
    fields.Split("a,b");
    fields.Split("c");
    EXPECT_EQ(fields[0], "");
    EXPECT_EQ(fields[1], "");
    EXPECT_EQ(Log(), LogLine("SplitRecord: c 2", 5, "Invalid procedure call"));
}

TEST(QuotedTest, FieldsAreJoinedByCommas) {
    EXPECT_EQ(QuotedFields({"a", "", "c,d"}), R"("a","","c,d")");
}

TEST(QuotedTest, AFieldIsPutIntoQuotesWithoutEscapes) {
    EXPECT_EQ(Quoted("a\"b,c"), "\"a\"b,c\"");
    EXPECT_EQ(Quoted(""), "\"\"");
}

}  // namespace
}  // namespace marlo
