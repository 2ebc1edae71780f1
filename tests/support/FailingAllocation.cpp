#include "tests/support/FailingAllocation.h"

#include <cstdlib>
#include <new>

namespace {

bool (*allocationFails)(std::size_t size) = nullptr;

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

}  // namespace marlo::test
