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

/// While one of these lives, one allocation fails: the `number`th from its beginning, 1-based.
class FailingNthAllocation {
  public:
    explicit FailingNthAllocation(std::size_t number);

    /// Whether that of the last one of these has failed.
    static bool HasFailed();
    /// Lets all that are still to come succeed.
    static void CallOff();

  private:
    FailingAllocation failing_;
};

}  // namespace marlo::test
