#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "inventory/ReadRegistry.h"
#include "tests/support/ApplicationTest.h"

namespace marlo {
namespace {

using namespace std::string_literals;
using namespace platform::registry_type;
using platform::kClassesRoot;
using platform::kLocalMachine;
using Bytes = std::vector<unsigned char>;

constexpr std::int32_t kNone = 0;
constexpr std::int32_t kQword = 11;

class ReadRegistryTest : public test::ApplicationTest {
  protected:
    ReadRegistryTest() { registry.AddKey(kLocalMachine, "Key"); }

    void Set(std::int32_t valueType, const std::string& bytes) {
        registry.Set(kLocalMachine, "Key", "Value", valueType, {bytes.begin(), bytes.end()});
    }

    RegistryValue Read(const std::string& name = "Value") {
        return GetRegistryValue(application, kLocalMachine, "Key", name, type);
    }

    static std::string FailureLine(int number, const std::string& description) {
        return LogLine("GetRegistryValue, hkey1: -2147483646 KeyName: Key", number, description);
    }

    std::int32_t type = kNone;
};

TEST_F(ReadRegistryTest, ATextComesWithoutItsFinalNul) {
    Set(kString, "Echo\0"s);
    EXPECT_EQ(Read(), RegistryValue("Echo"s));
    EXPECT_EQ(type, kString);
}

TEST_F(ReadRegistryTest, AnExpandableTextIsNotExpanded) {
    Set(kExpandString, "%SystemRoot%\\x\0"s);
    EXPECT_EQ(Read(), RegistryValue("%SystemRoot%\\x"s));
    EXPECT_EQ(type, kExpandString);
}

TEST_F(ReadRegistryTest, MultipleTextsKeepTheNulsBetweenThem) {
    Set(kMultiString, "a\0b\0\0"s);
    EXPECT_EQ(Read(), RegistryValue("a\0b"s));
}

TEST_F(ReadRegistryTest, FiveBytesAreFiveElements) {
    Set(kBinary, "\1\2\0\4\5"s);
    EXPECT_EQ(Read(), RegistryValue(Bytes{1, 2, 0, 4, 5}));
}

TEST_F(ReadRegistryTest, ANumberIsSignedWithItsLowByteFirst) {
    Set(kDword, "\0\0\x20\0"s);
    EXPECT_EQ(Read(), RegistryValue(0x00200000));
    Set(kDword, "\xFE\xFF\xFF\xFF");
    EXPECT_EQ(Read(), RegistryValue(-2));
}

TEST_F(ReadRegistryTest, AShortNumberIsFilledUpWithZeroBytes) {
    Set(kDword, "\7");
    EXPECT_EQ(Read(), RegistryValue(7));
}

TEST_F(ReadRegistryTest, AnyOtherTypeIsTheEmptyText) {
    for (const std::int32_t other : {kNone, 5, 6, 8, kQword, -1}) {
        Set(other, "abcdefgh");
        EXPECT_EQ(Read(), RegistryValue(""s)) << other;
    }
    EXPECT_EQ(Log(), "");
}

TEST_F(ReadRegistryTest, AMissingKeyYieldsTheDefaultAndLeavesTheType) {
    type = 77;
    EXPECT_EQ(GetRegistryValue(application, kLocalMachine, "Gone", "Value", type), RegistryValue());
    EXPECT_EQ(GetRegistryValue(application, kLocalMachine, "Gone", "Value", type, "none"s),
              RegistryValue("none"s));
    EXPECT_EQ(type, 77);
    EXPECT_EQ(Log(), "");
}

TEST_F(ReadRegistryTest, AMissingValueIsConvertedAsTheCallersType) {
    EXPECT_EQ(Read("missing"), RegistryValue(""s));
    type = kString;
    EXPECT_EQ(Read("missing"), RegistryValue(std::string(1023, '\0')));
    type = kMultiString;
    EXPECT_EQ(Read("missing"), RegistryValue(std::string(1022, '\0')));
    type = kBinary;
    EXPECT_EQ(Read("missing"), RegistryValue(Bytes(1024)));
    type = kDword;
    EXPECT_EQ(Read("missing"), RegistryValue(0));
    EXPECT_EQ(type, kDword);
    EXPECT_EQ(Log(), "");
}

TEST_F(ReadRegistryTest, ALongTextIsReadWholeThroughASecondQuery) {
    int queries = 0;
    registry.onQuery = [&](const std::string&) { ++queries; };
    const std::string atLimit(1023, 'x');
    Set(kString, atLimit + "\0"s);
    EXPECT_EQ(Read(), RegistryValue(atLimit));
    EXPECT_EQ(queries, 1);
    const std::string beyond(1024, 'x');
    Set(kString, beyond + "\0"s);
    EXPECT_EQ(Read(), RegistryValue(beyond));
    EXPECT_EQ(queries, 3);
}

TEST_F(ReadRegistryTest, AValueThatGrowsBetweenTheQueriesIsAFailure) {
    Set(kString, std::string(2000, 'x'));
    int queries = 0;
    registry.onQuery = [&](const std::string&) {
        if (++queries == 2)
            Set(kString, std::string(3000, 'x'));
    };
    EXPECT_EQ(Read(), RegistryValue());
    EXPECT_EQ(queries, 2) << "the buffer grows once";
    EXPECT_EQ(Log(), FailureLine(9, "Subscript out of range"));
}

TEST_F(ReadRegistryTest, AValueThatVanishesBetweenTheQueriesIsZeros) {
    Set(kBinary, std::string(2000, 'x'));
    int queries = 0;
    registry.onQuery = [&](const std::string&) {
        if (++queries == 2)
            registry = test::MemoryRegistry();
    };
    EXPECT_EQ(Read(), RegistryValue(Bytes(2000)));
}

TEST_F(ReadRegistryTest, ATextWithoutEvenItsNulFailsAndIsLoggedWithTheSignedHive) {
    registry.Set(kClassesRoot, "CLSID\\{x}", "", kString, {});
    EXPECT_EQ(GetRegistryValue(application, kClassesRoot, "CLSID\\{x}", "", type), RegistryValue());
    EXPECT_EQ(Log(), LogLine("GetRegistryValue, hkey1: -2147483648 KeyName: CLSID\\{x}", 5,
                             "Invalid procedure call"));
}

TEST_F(ReadRegistryTest, NegativeLengthsFailAndTheDefaultIsReturned) {
    const std::string failure = FailureLine(5, "Invalid procedure call");
    for (const std::int32_t text : {kString, kExpandString, kMultiString}) {
        Set(text, "");
        EXPECT_EQ(GetRegistryValue(application, kLocalMachine, "Key", "Value", type, 5),
                  RegistryValue(5));
    }
    Set(kMultiString, "\0"s);
    EXPECT_EQ(Read(), RegistryValue());
    EXPECT_EQ(Log(), failure + failure + failure + failure);
}

TEST_F(ReadRegistryTest, NoBytesAtAllAreNoArray) {
    Set(kBinary, "");
    EXPECT_EQ(Read(), RegistryValue());
    EXPECT_EQ(Log(), FailureLine(9, "Subscript out of range"));
}

TEST_F(ReadRegistryTest, TheKeyIsClosedAlsoAfterAFailure) {
    Set(kString, "");
    Read();
    Read("missing");
    EXPECT_EQ(registry.OpenKeyCount(), 0U);
}

TEST(RegistryTextTest, AValueAsAText) {
    EXPECT_EQ(TextOf(RegistryValue()), "");
    EXPECT_EQ(TextOf(RegistryValue("Echo"s)), "Echo");
    EXPECT_EQ(TextOf(RegistryValue(-7)), "-7");
    EXPECT_THROW(TextOf(RegistryValue(Bytes{1})), RunTimeError);
}

}  // namespace
}  // namespace marlo
