#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "inventory/FilterData.h"
#include "tests/support/ApplicationTest.h"
#include "tools/FilterWriter.h"

namespace marlo {
namespace {

using platform::kClassesRoot;
using tools::AudioPin;
using tools::kAudio;
using tools::kNoGuid;
using tools::kPcm;
using tools::kVideo;
using tools::Pin;
using Bytes = std::vector<unsigned char>;

constexpr const char* kAudioText = "73647561-0000-0010-8000-00AA00389B71";
constexpr const char* kPcmText = "00000001-0000-0010-8000-00AA00389B71";
constexpr const char* kAnyText = "00000000-0000-0000-0000-000000000000";

class FilterDataTest : public test::ApplicationTest {
  protected:
    FilterDataTest() { registry.SetText(kClassesRoot, "Filter", "FriendlyName", "Echo"); }

    void SetData(const Bytes& data) {
        registry.Set(kClassesRoot, "Filter", "FilterData", platform::registry_type::kBinary, data);
    }

    PinTypeTable Table(const Bytes& data) {
        SetData(data);
        return Table();
    }
    PinTypeTable Table() { return GetPluginTypes(application, kClassesRoot, "Filter"); }

    bool IsCompatible(const std::vector<Pin>& pins) {
        return IsCubaseCompatible(application, Table(tools::FilterData(pins)), name);
    }

    static std::string PinTypesFailure() {
        return LogLine("GetPluginTypes", 9, "Subscript out of range");
    }
    static std::string CompatibleFailure() {
        return LogLine("IsCubaseCompatible", 13, "Type mismatch");
    }

    std::string name;
};

TEST_F(FilterDataTest, APinsMediaTypesAreGroupsOfFive) {
    const Bytes data = tools::FilterData({{{kAudio, kPcm}, {kAudio, kNoGuid}}, {{kVideo, kPcm}}});
    EXPECT_EQ(Table(data),
              (PinTypeTable{"Echo", "1", "1", kAudioText, kPcmText,  //
                            "Echo", "1", "2", kAudioText, kAnyText,  //
                            "Echo", "2", "1", "73646976-0000-0010-8000-00AA00389B71", kPcmText}));
    EXPECT_EQ(Log(), "");
}

TEST_F(FilterDataTest, APinWithoutMediaTypesHasNoGroup) {
    EXPECT_EQ(Table(tools::FilterData({{}, AudioPin()})),
              (PinTypeTable{"Echo", "2", "1", kAudioText, kPcmText}));
}

TEST_F(FilterDataTest, MoreThanTwentyGroupsMakeTheTableGrow) {
    const Pin pin(30, {kAudio, kPcm});
    EXPECT_EQ(Table(tools::FilterData({pin, pin})).size(), 300U);
    EXPECT_EQ(Table(tools::FilterData({Pin(255, {kAudio, kPcm})})).size(), 1275U);
    EXPECT_EQ(Log(), "");
}

TEST_F(FilterDataTest, OnlyTheLowByteOfTheCountsIsRead) {
    Bytes data = tools::EffectFilterData();
    data[9] = 1;   // 258 pins
    data[29] = 1;  // 257 media types
    EXPECT_EQ(Table(data).size(), 10U);
}

TEST_F(FilterDataTest, OnlyTheLowWordOfTheOffsetsIsRead) {
    Bytes data = tools::EffectFilterData();
    data[50] = 1;
    data[54] = 1;
    EXPECT_EQ(Table(data).size(), 10U);
}

TEST_F(FilterDataTest, AShortRegistrationGivesTheNameAlone) {
    EXPECT_EQ(Table(Bytes(1)), PinTypeTable{"Echo"});
    EXPECT_EQ(Table(Bytes(28)), PinTypeTable{"Echo"});
    EXPECT_EQ(Log(), "");
}

TEST_F(FilterDataTest, WithoutARegistrationThereIsNoTable) {
    EXPECT_EQ(Table(), PinTypeTable());
    registry.SetDword(kClassesRoot, "Filter", "FilterData", 5);
    EXPECT_EQ(Table(), PinTypeTable());
    EXPECT_EQ(GetPluginTypes(application, kClassesRoot, "Gone"), PinTypeTable());
    EXPECT_EQ(Log(), "");
}

TEST_F(FilterDataTest, AMissingNameIsEmpty) {
    const Bytes data = tools::EffectFilterData();
    registry.Set(kClassesRoot, "Nameless", "FilterData", platform::registry_type::kBinary, data);
    EXPECT_EQ(GetPluginTypes(application, kClassesRoot, "Nameless").at(0), "");
}

TEST_F(FilterDataTest, AMissingRegistrationIsConvertedAsTheNamesType) {
    registry.Set(kClassesRoot, "Odd", "FriendlyName", platform::registry_type::kBinary, {1, 2});
    // 1,024 zero bytes then, which declare no pins.
    EXPECT_EQ(GetPluginTypes(application, kClassesRoot, "Odd"), PinTypeTable(101));
    EXPECT_EQ(Log(), PinTypesFailure());
}

TEST_F(FilterDataTest, ANameOfBytesIsAFailure) {
    registry.Set(kClassesRoot, "Filter", "FriendlyName", platform::registry_type::kBinary, {1, 2});
    EXPECT_EQ(Table(tools::EffectFilterData()), PinTypeTable(101));
    EXPECT_EQ(Log(), LogLine("GetPluginTypes", 13, "Type mismatch"));
}

TEST_F(FilterDataTest, NoPinsAreAFailureOfBothSteps) {
    Bytes data = tools::EffectFilterData();
    data[8] = 0;
    const PinTypeTable table = Table(data);
    EXPECT_EQ(table, PinTypeTable(101));
    EXPECT_FALSE(IsCubaseCompatible(application, table, name));
    EXPECT_EQ(Log(), PinTypesFailure() + CompatibleFailure());
}

TEST_F(FilterDataTest, AnOffsetOutOfTheDataLeavesTheTableAsItIsThen) {
    Bytes data = tools::FilterData({AudioPin(), AudioPin(), {{kVideo, kPcm}}});
    data[16 + 40 + 40 + 24 + 8] = 0xFF;  // the major type of the third pin
    data[16 + 40 + 40 + 24 + 9] = 0xFF;
    const PinTypeTable table = Table(data);
    ASSERT_EQ(table.size(), 101U);
    EXPECT_EQ(table[5], "Echo");
    EXPECT_EQ(table[10], "");
    EXPECT_EQ(Log(), PinTypesFailure());
    EXPECT_TRUE(IsCubaseCompatible(application, table, name)) << "pins 1 and 2 were complete";
    EXPECT_EQ(name, "Echo");
    EXPECT_EQ(Log(), PinTypesFailure());
}

TEST_F(FilterDataTest, AnEmptyGroupIsAFailure) {
    Bytes data = tools::FilterData({AudioPin(), {{kVideo, kPcm}}});
    data[16 + 40 + 24 + 9] = 0xFF;
    EXPECT_FALSE(IsCubaseCompatible(application, Table(data), name));
    EXPECT_EQ(Log(), PinTypesFailure() + CompatibleFailure());
}

TEST_F(FilterDataTest, TheLastByteOfAGuidMayBeTheLastOfTheData) {
    Bytes data = tools::FilterData({{{kAudio, kPcm}}});
    EXPECT_EQ(Table(data).size(), 5U);
    data.pop_back();
    EXPECT_EQ(Table(data).size(), 101U);
}

TEST_F(FilterDataTest, TwoAudioPinsAreCompatible) {
    EXPECT_TRUE(IsCompatible({AudioPin(), AudioPin()}));
    EXPECT_EQ(name, "Echo");
    EXPECT_TRUE(IsCompatible({AudioPin(), {{kAudio, kNoGuid}}})) << "any subtype";
    EXPECT_TRUE(IsCompatible({{{kVideo, kPcm}, {kAudio, kPcm}}, AudioPin()})) << "the second type";
    EXPECT_TRUE(IsCompatible({AudioPin(), AudioPin(), {{kVideo, kNoGuid}}}));
}

TEST_F(FilterDataTest, OtherPinsAreNot) {
    EXPECT_FALSE(IsCompatible({AudioPin()}));
    EXPECT_FALSE(IsCompatible({AudioPin(), {{kVideo, kPcm}}}));
    EXPECT_FALSE(IsCompatible({AudioPin(), {{kAudio, kVideo}}}));
    EXPECT_FALSE(IsCompatible({{{kVideo, kNoGuid}}, AudioPin()}));
    EXPECT_EQ(Log(), "");
}

TEST_F(FilterDataTest, OnlyPins1And2Count) {
    EXPECT_FALSE(IsCompatible({{{kVideo, kNoGuid}}, AudioPin(), AudioPin()}));
    EXPECT_FALSE(IsCompatible({AudioPin(), {{kVideo, kNoGuid}}, AudioPin()}));
}

TEST_F(FilterDataTest, TheComparisonOfGuidsIsExact) {
    const PinTypeTable table = {"Echo",     "1",     "1", "73647561-0000-0010-8000-00aa00389b71",
                                kPcmText,   "Echo",  "2", "1",
                                kAudioText, kPcmText};
    EXPECT_FALSE(IsCubaseCompatible(application, table, name));
}

TEST_F(FilterDataTest, ATableWithoutGroupsIsNotCompatible) {
    EXPECT_FALSE(IsCubaseCompatible(application, {}, name));
    EXPECT_FALSE(IsCubaseCompatible(application, {"Echo"}, name));
    EXPECT_EQ(Log(), "");
}

TEST_F(FilterDataTest, AGuidIsWrittenInDisplayOrder) {
    EXPECT_EQ(FormatGUID(application, "00112233445566778899AABBCCDDEEFF"),
              "33221100-5544-7766-8899-AABBCCDDEEFF");
}

TEST_F(FilterDataTest, AShortGuidIsAFailureAndGivesNoText) {
    const std::string almost = "00112233445566778899AABBCCDDEEF";
    EXPECT_EQ(FormatGUID(application, "0011"), "");
    EXPECT_EQ(FormatGUID(application, almost), "");
    EXPECT_EQ(Log(), LogLine("FormatGUID: 0011", 5, "Invalid procedure call") +
                         LogLine("FormatGUID: " + almost, 5, "Invalid procedure call"));
}

}  // namespace
}  // namespace marlo
