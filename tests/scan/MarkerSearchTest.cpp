#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "scan/MarkerSearch.h"

namespace marlo {
namespace {

using Bytes = std::vector<unsigned char>;

/// Checks all searches against the standard library's, from every one of the first places.
void CheckSearches(const Bytes& bytes) {
    const unsigned char* const last = bytes.data() + bytes.size();
    for (std::size_t from = 0; from <= std::min<std::size_t>(bytes.size(), 3); ++from) {
        const unsigned char* const first = bytes.data() + from;
        const auto* const expected =
            std::search(first, last, kBankMarker.begin(), kBankMarker.end());
        ASSERT_EQ(FindMarker(first, last) - first, expected - first);
        for (const MarkerSearch search : MarkerSearches())
            ASSERT_EQ(search(first, last) - first, expected - first);
    }
}

void Put(Bytes& bytes, std::size_t offset, std::string_view text) {
    std::copy(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset));
}

TEST(MarkerSearchTest, AMarkerIsFoundAtEveryOffset) {
    constexpr std::size_t size = 2200;
    for (std::size_t offset = 0; offset + kBankMarker.size() <= size; ++offset) {
        Bytes bytes(size, 0);
        Put(bytes, offset, kBankMarker);
        CheckSearches(bytes);
    }
}

TEST(MarkerSearchTest, MemoryOfAnySizeIsSearchedToItsEnd) {
    for (std::size_t size = 0; size < 1300; ++size) {
        Bytes bytes(size, 'C');
        CheckSearches(bytes);
        if (size >= kBankMarker.size())
            Put(bytes, size - kBankMarker.size(), kBankMarker);
        CheckSearches(bytes);
    }
}

TEST(MarkerSearchTest, PartsOfMarkersLeadNowhere) {
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        Bytes bytes(1 + random() % 1500, 'x');
        for (int i = 0; i < 60; ++i)
            bytes[random() % bytes.size()] = static_cast<unsigned char>("CcnK"[random() % 4]);
        for (const std::string_view part : {"Cc", "cn", "nK", "Ccn", "cnK", "CcnK"})
            if (bytes.size() > 4 && random() % 3 == 0)
                Put(bytes, random() % (bytes.size() - 4), part);
        CheckSearches(bytes);
    }
}

}  // namespace
}  // namespace marlo
