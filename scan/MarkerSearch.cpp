#include "scan/MarkerSearch.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace marlo {

namespace {

constexpr std::size_t kChunk = 512;     // bytes
constexpr std::size_t kCacheLine = 64;  // bytes
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

/// The first marker that lies between the two; `last` if there is none.
const unsigned char* FindIn(const unsigned char* first, const unsigned char* last) {
    const std::string_view bytes(reinterpret_cast<const char*>(first),
                                 static_cast<std::size_t>(last - first));
    return first + std::min(bytes.find(kBankMarker), bytes.size());
}

[[gnu::always_inline]] inline const unsigned char* Find(const unsigned char* first,
                                                        const unsigned char* last) {
    const unsigned char* const start = first;
    while (last - first >= static_cast<std::ptrdiff_t>(kChunk)) {
        if (MayHoldMarker(first)) {
            const auto* const from = first == start ? first : first - 1;
            const auto* const to =
                first + std::min<std::ptrdiff_t>(last - first, kChunk + kMarkerLength - 1);
            const auto* const marker = FindIn(from, to);
            if (marker != to)
                return marker;
        }
        // What straddles two cache lines takes twice as long to load.
        first += kChunk - reinterpret_cast<std::uintptr_t>(first) % kCacheLine;
    }
    return FindIn(first == start ? first : first - 1, last);
}

const unsigned char* FindPortably(const unsigned char* first, const unsigned char* last) {
    return Find(first, last);
}

#if defined(__x86_64__) || defined(__i386__)

[[gnu::target("avx2")]] const unsigned char* FindWithAvx2(const unsigned char* first,
                                                          const unsigned char* last) {
    return Find(first, last);
}

std::vector<MarkerSearch> SearchesOfProcessor() {
    std::vector<MarkerSearch> searches;
    if (__builtin_cpu_supports("avx2"))
        searches.push_back(FindWithAvx2);
    searches.push_back(FindPortably);
    return searches;
}

#else

std::vector<MarkerSearch> SearchesOfProcessor() {
    return {FindPortably};
}

#endif

}  // namespace

const std::vector<MarkerSearch>& MarkerSearches() {
    static const std::vector<MarkerSearch> searches = SearchesOfProcessor();
    return searches;
}

const unsigned char* FindMarker(const unsigned char* first, const unsigned char* last) {
    static const MarkerSearch fastest = MarkerSearches().front();
    return fastest(first, last);
}

}  // namespace marlo
