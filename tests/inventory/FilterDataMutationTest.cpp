// Registrations that are broken in every way, made from real ones.

#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "inventory/FilterData.h"
#include "tests/support/ApplicationTest.h"
#include "tools/FilterWriter.h"

namespace marlo {
namespace {

using platform::kClassesRoot;
using Bytes = std::vector<unsigned char>;

/// A codec's registration as a registry has it: audio of any subtype on both pins, all offsets
/// into one pool.
const Bytes kCodec = {
    0x02, 0x00, 0x00, 0x00, 0x00, 0x00, 0x60, 0x00, 0x02, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x30, 0x70, 0x69, 0x33, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x30, 0x74, 0x79, 0x33, 0x00, 0x00, 0x00, 0x00,
    0x60, 0x00, 0x00, 0x00, 0x70, 0x00, 0x00, 0x00, 0x31, 0x70, 0x69, 0x33, 0x08, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x30, 0x74, 0x79, 0x33, 0x00, 0x00, 0x00, 0x00, 0x60, 0x00, 0x00, 0x00, 0x70, 0x00, 0x00, 0x00,
    0x61, 0x75, 0x64, 0x73, 0x00, 0x00, 0x10, 0x00, 0x80, 0x00, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00};

/// The table read step by step with nothing clever about it.
/// @return nothing when the reading fails.
std::optional<PinTypeTable> ReadLiterally(const Bytes& data) {
    const auto guid = [&](std::size_t at) {
        std::string text;
        for (const std::size_t k :
             {3U, 2U, 1U, 0U, 5U, 4U, 7U, 6U, 8U, 9U, 10U, 11U, 12U, 13U, 14U, 15U}) {
            constexpr const char* digits = "0123456789ABCDEF";
            text += digits[data.at(at + k) >> 4U];
            text += digits[data.at(at + k) & 15U];
            if (k == 0 || k == 4 || k == 6 || k == 9)
                text += '-';
        }
        return text;
    };
    PinTypeTable table;
    try {
        const int pins = data.at(8);
        int types = data.at(28);
        std::size_t pos = 48;
        for (int pin = 1; pin <= pins; ++pin) {
            for (int type = 1; type <= types; ++type, pos += 16)
                table.insert(table.end(), {"Echo", std::to_string(pin), std::to_string(type),
                                           guid(data.at(pos) + 256U * data.at(pos + 1)),
                                           guid(data.at(pos + 4) + 256U * data.at(pos + 5))});
            if (pin < pins) {
                types = data.at(pos + 4);
                pos += 24;
            }
        }
    } catch (const std::out_of_range&) {
        return std::nullopt;
    }
    return table.empty() ? std::nullopt : std::optional(table);
}

class FilterDataMutationTest : public test::ApplicationTest {
  protected:
    FilterDataMutationTest() {
        registry.SetText(kClassesRoot, "Filter", "FriendlyName", "Echo");
        application.onErrorLogged = [this](const ErrorEntry& entry) { last_ = entry; };
    }

    void Check(const Bytes& data) {
        last_ = {};
        registry.Set(kClassesRoot, "Filter", "FilterData", platform::registry_type::kBinary, data);
        const PinTypeTable table = GetPluginTypes(application, kClassesRoot, "Filter");
        if (data.empty()) {
            EXPECT_TRUE(table.empty());
        } else if (data.size() <= 28) {
            EXPECT_EQ(table, PinTypeTable{"Echo"});
        } else if (const auto expected = ReadLiterally(data)) {
            EXPECT_EQ(table, *expected);
            EXPECT_EQ(last_.procedure, "");
        } else {
            EXPECT_EQ(last_.procedure, "GetPluginTypes");
            EXPECT_EQ(last_.number, 9);
            EXPECT_EQ((table.size() - 1) % 100, 0U) << "not shrunk";
        }
        std::string name;
        IsCubaseCompatible(application, table, name);
    }

    ErrorEntry last_;
};

TEST_F(FilterDataMutationTest, TheCodecItselfIsCompatible) {
    Check(kCodec);
    std::string name;
    EXPECT_TRUE(
        IsCubaseCompatible(application, GetPluginTypes(application, kClassesRoot, "Filter"), name));
}

TEST_F(FilterDataMutationTest, EveryByteMayHaveEveryValue) {
    for (std::size_t at = 0; at < kCodec.size(); ++at)
        for (const int value : {0, 1, 2, 0x10, 0x7F, 0x80, 0xFE, 0xFF}) {
            Bytes data = kCodec;
            data[at] = static_cast<unsigned char>(value);
            Check(data);
        }
}

TEST_F(FilterDataMutationTest, TheDataMayEndAnywhere) {
    for (std::size_t size = 0; size < kCodec.size(); ++size)
        Check(Bytes(kCodec.begin(), kCodec.begin() + static_cast<std::ptrdiff_t>(size)));
}

TEST_F(FilterDataMutationTest, ManyRandomChangesAtOnce) {
    std::mt19937 random(20061115);
    const auto below = [&](std::size_t bound) { return random() % bound; };
    const std::vector<Bytes> seeds = {
        kCodec, tools::EffectFilterData(),
        tools::FilterData({tools::Pin(3, {tools::kAudio, tools::kPcm}),
                           tools::AudioPin(),
                           {{tools::kVideo, tools::kNoGuid}}})};
    for (int round = 0; round < 20000; ++round) {
        Bytes data = seeds[below(seeds.size())];
        for (std::size_t changes = below(6); changes > 0; --changes)
            data[below(data.size())] = static_cast<unsigned char>(below(256));
        if (below(4) == 0)
            data.resize(below(data.size() + 100));
        Check(data);
    }
}

}  // namespace
}  // namespace marlo
