#include "tests/soak/Heap.h"

#include <limits>

// AddressSanitizer's, which GCC has without the header for it.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

namespace marlo::soak {

namespace {

constexpr std::size_t kKilobyte = 1024;

}  // namespace

void Heap::Sample(double moment) {
    looks_.push_back({moment, __sanitizer_get_current_allocated_bytes()});
}

const Heap::Look* Heap::Least(double from, double to) const {
    const Look* least = nullptr;
    for (const Look& look : looks_)
        if (look.moment >= from && look.moment < to &&
            (least == nullptr || look.bytes < least->bytes))
            least = &look;
    return least;
}

std::ptrdiff_t Heap::Growth() const {
    const Look* const early = Least(0.25, 0.5);
    const Look* const late = Least(0.75, 1);
    if (early == nullptr || late == nullptr)
        return std::numeric_limits<std::ptrdiff_t>::max();
    return static_cast<std::ptrdiff_t>(late->bytes) - static_cast<std::ptrdiff_t>(early->bytes);
}

void Heap::Print(std::ostream& out) const {
    out << "KB held at rest:";
    for (const Look& look : looks_)
        out << ' ' << look.bytes / kKilobyte;
    out << '\n';
}

}  // namespace marlo::soak
