// Memory that is handed out piece by piece and given back as a whole.
#include "drawing/database/Arena.h"

#include <algorithm>
#include <utility>

namespace drawing {

void* Arena::Allocate(std::size_t size, std::size_t alignment) {
    if (std::align(alignment, size, next_, left_) == nullptr) {
        const std::size_t chunkSize = std::max(chunkSize_, size);
        std::unique_ptr<std::byte[]> chunk(new std::byte[chunkSize]); // not set to 0, as make_unique does
        chunks_.push_back(std::move(chunk));
        next_ = chunks_.back().get();
        left_ = chunkSize;
        chunkSize_ = std::min(2 * chunkSize, kLargestChunk);
    }
    void* const place = next_;
    next_ = static_cast<std::byte*>(next_) + size;
    left_ -= size;
    return place;
}

} // namespace drawing
