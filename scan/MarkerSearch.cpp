#include "scan/MarkerSearch.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace marlo {

namespace {

constexpr std::size_t kChunk = 512;  // bytes
constexpr std::ptrdiff_t kMarkerLength = 4;

/// Two bytes as they lie in memory.
std::uint16_t Pair(const void* bytes) {
    std::uint16_t pair = 0;
    std::memcpy(&pair, bytes, sizeof pair);
    return pair;
}

/// Whether a marker may begin in the chunk, or in the byte before it. Of a marker's bytes, either
/// the first two or the middle two lie at an even offset, so a marker shows in every second pair.
/// Written without branches, for the compiler to turn into vector instructions.
[[gnu::always_inline]] inline bool MayHoldMarker(const unsigned char* chunk) {
    const std::uint16_t firstTwo = Pair(kBankMarker.data());
    const std::uint16_t middleTwo = Pair(kBankMarker.data() + 1);
    std::uint16_t leastDifference = 0xFFFF;
    for (std::size_t i = 0; i < kChunk; i += 2) {
        const std::uint16_t pair = Pair(chunk + i);
        leastDifference = std::min(leastDifference, static_cast<std::uint16_t>(pair ^ firstTwo));
        leastDifference = std::min(leastDifference, static_cast<std::uint16_t>(pair ^ middleTwo));
    }
    return leastDifference == 0;
}

[[gnu::always_inline]] inline const unsigned char* Find(const unsigned char* first,
                                                        const unsigned char* last) {
    const unsigned char* const start = first;
    while (last - first >= static_cast<std::ptrdiff_t>(kChunk)) {
        if (MayHoldMarker(first)) {
            const auto* const from = first == start ? first : first - 1;
            const auto* const to =
                first + std::min<std::ptrdiff_t>(last - first, kChunk + kMarkerLength - 1);
            const auto* const marker =
                std::search(from, to, kBankMarker.begin(), kBankMarker.end());
            if (marker != to)
                return marker;
        }
        first += kChunk;
    }
    return std::search(first == start ? first : first - 1, last, kBankMarker.begin(),
                       kBankMarker.end());
}

#if defined(__x86_64__) || defined(__i386__)

[[gnu::target("avx2")]] const unsigned char* FindWithAvx2(const unsigned char* first,
                                                          const unsigned char* last) {
    return Find(first, last);
}

bool HasAvx2() {
    return __builtin_cpu_supports("avx2");
}

#else

const unsigned char* FindWithAvx2(const unsigned char* first, const unsigned char* last) {
    return FindMarkerPortably(first, last);
}

bool HasAvx2() {
    return false;
}

#endif

}  // namespace

const unsigned char* FindMarkerPortably(const unsigned char* first, const unsigned char* last) {
    return Find(first, last);
}

const unsigned char* FindMarker(const unsigned char* first, const unsigned char* last) {
    static const auto find = HasAvx2() ? FindWithAvx2 : FindMarkerPortably;
    return find(first, last);
}

}  // namespace marlo
