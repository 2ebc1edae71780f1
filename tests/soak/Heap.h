#pragma once

#include <cstddef>
#include <ostream>
#include <vector>

namespace marlo::soak {

/// How much memory the program holds, looked at again and again while it is at rest.
class Heap {
  public:
    /// Looks now. @param moment the part of the run that is over, from 0 to 1.
    void Sample(double moment);

    /// By how many bytes the least that was held in the last quarter of the run is above the least
    /// in the second. What is kept for the next time is there by then.
    /// @return nothing near zero when a quarter has no sample: more than any bound.
    std::ptrdiff_t Growth() const;

    void Print(std::ostream& out) const;

  private:
    struct Look {
        double moment;
        std::size_t bytes;
    };

    const Look* Least(double from, double to) const;

    std::vector<Look> looks_;
};

}  // namespace marlo::soak
