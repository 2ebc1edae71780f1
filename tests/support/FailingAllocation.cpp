#include "tests/support/FailingAllocation.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

bool (*allocationFails)(std::size_t size) = nullptr;

std::size_t allocationsLeft = 0;  ///< up to the one that fails, with it; 0 when it has failed

bool IsLast(std::size_t /*size*/) {
    return allocationsLeft > 0 && --allocationsLeft == 0;
}

bool IsLastOrBehind(std::size_t /*size*/) {
    return allocationsLeft == 0 || --allocationsLeft == 0;
}

}  // namespace

void* operator new(std::size_t size) {
    const bool fails = allocationFails != nullptr && allocationFails(size);
    void* const memory = fails ? nullptr : std::malloc(size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

namespace marlo::test {

FailingAllocation::FailingAllocation(bool (*fails)(std::size_t size)) {
    allocationFails = fails;
}

FailingAllocation::~FailingAllocation() {
    allocationFails = nullptr;
}

FailingNthAllocation::FailingNthAllocation(std::size_t number, Failing failing)
    : failing_(failing == Failing::One ? IsLast : IsLastOrBehind) {
    allocationsLeft = number;
}

bool FailingNthAllocation::HasFailed() {
    return allocationsLeft == 0;
}

void FailingNthAllocation::CallOff() {
    allocationsLeft = std::numeric_limits<std::size_t>::max();
}

std::size_t FailEach(Failing failing, const std::function<void()>& action,
                     const std::function<void()>& check) {
    for (std::size_t number = 1;; ++number) {
        {
            const FailingNthAllocation each(number, failing);
            action();
        }
        if (!FailingNthAllocation::HasFailed())
            return number - 1;
        check();
    }
}

}  // namespace marlo::test
