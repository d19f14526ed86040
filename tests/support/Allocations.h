// Counts the allocations of a piece of code, and makes a chosen one fail.
#pragma once

#include <cstddef>

namespace test_support {

/// While an object of this class lives, the allocations of the program through operator new are counted, and
/// the one with the number `failing` (from 1; 0 for none) throws std::bad_alloc. One at a time, on one
/// thread.
class AllocationWatch {
public:
    explicit AllocationWatch(std::size_t failing = 0);
    ~AllocationWatch();
    AllocationWatch(const AllocationWatch&) = delete;
    AllocationWatch& operator=(const AllocationWatch&) = delete;

    /// Allocations so far, the failed one included.
    std::size_t Count() const;
    /// Whether the allocation that was to fail came.
    bool HasFailed() const;
    /// Arrays and objects allocated since and not yet freed, less those that are older and were freed since.
    std::ptrdiff_t Live() const;
};

} // namespace test_support
