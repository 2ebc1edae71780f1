#pragma once

#include <cstddef>

namespace marlo::test {

/// While one of these lives, the allocations that it picks out by their size fail. Linking it
/// replaces the allocation of the whole program.
class FailingAllocation {
  public:
    explicit FailingAllocation(bool (*fails)(std::size_t size));
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    FailingAllocation(FailingAllocation&&) = delete;
    FailingAllocation& operator=(FailingAllocation&&) = delete;
    ~FailingAllocation();
};

}  // namespace marlo::test
