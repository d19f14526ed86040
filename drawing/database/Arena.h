// Memory that is handed out piece by piece and given back as a whole.
#pragma once

#include "OxDb/Export.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace drawing {

/// Room for many small objects that go together. Nobody is told when it goes: whoever puts an object there
/// ends it first.
class OXDB_API Arena {
public:
    Arena() = default;
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;

    /// Room for an object of that size. `alignment` is at most that of memory from `new`.
    void* Allocate(std::size_t size, std::size_t alignment);

private:
    // A block of a drawing may hold one entity or a million: chunks grow with what they hold.
    static constexpr std::size_t kFirstChunk = 256;     // bytes
    static constexpr std::size_t kLargestChunk = 65536; // bytes; what is unused of the last one is lost

    std::vector<std::unique_ptr<std::byte[]>> chunks_;
    std::size_t chunkSize_ = kFirstChunk; // of the next one
    void* next_ = nullptr;
    std::size_t left_ = 0; // bytes from next_ on
};

} // namespace drawing
