// The global operator new and delete, with counters.
#include "tests/support/Allocations.h"

#include <cstdlib>
#include <new>

namespace {

bool watching = false;
std::size_t allocations = 0;
std::size_t failingAllocation = 0;
std::ptrdiff_t liveAllocations = 0;

void* Allocate(std::size_t size) {
    if (watching) {
        ++allocations;
        if (allocations == failingAllocation) {
            throw std::bad_alloc();
        }
    }
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    if (watching) {
        ++liveAllocations;
    }
    return memory;
}

void Free(void* memory) noexcept {
    if (memory != nullptr && watching) {
        --liveAllocations;
    }
    std::free(memory);
}

} // namespace

void* operator new(std::size_t size) {
    return Allocate(size);
}

void* operator new[](std::size_t size) {
    return Allocate(size);
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    try {
        return Allocate(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
    return operator new(size, tag);
}

void operator delete(void* memory) noexcept {
    Free(memory);
}

void operator delete[](void* memory) noexcept {
    Free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    Free(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept {
    Free(memory);
}

namespace test_support {

AllocationWatch::AllocationWatch(std::size_t failing) {
    allocations = 0;
    failingAllocation = failing;
    liveAllocations = 0;
    watching = true;
}

AllocationWatch::~AllocationWatch() {
    watching = false;
}

std::size_t AllocationWatch::Count() const {
    return allocations;
}

bool AllocationWatch::HasFailed() const {
    return failingAllocation != 0 && allocations >= failingAllocation;
}

std::ptrdiff_t AllocationWatch::Live() const {
    return liveAllocations;
}

} // namespace test_support
