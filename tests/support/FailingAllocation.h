#pragma once

#include <cstddef>
#include <functional>

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

/// Whether one allocation fails, or all behind it, too.
enum class Failing { One, AllFromThereOn };

/// While one of these lives, an allocation fails: the `number`th from its beginning, 1-based.
class FailingNthAllocation {
  public:
    explicit FailingNthAllocation(std::size_t number, Failing failing = Failing::One);

    /// Whether that of the last one of these has failed.
    static bool HasFailed();
    /// Lets all that are still to come succeed.
    static void CallOff();

  private:
    FailingAllocation failing_;
};

/// Runs `action` again and again, with another allocation failing each time, until none fails any
/// more.
/// @param check called after each time in which one did, when there is memory again.
/// @return how often one did.
std::size_t FailEach(
    Failing failing, const std::function<void()>& action,
    const std::function<void()>& check = [] {});

}  // namespace marlo::test
