// Work on many items by all cores.
#pragma once

#include <cstddef>
#include <functional>

namespace styleconv {

/// What is done with each item. Items are numbered from 0.
struct ItemWork {
    /// On any thread, in any order.
    std::function<void(std::size_t item)> work;
    /// On the calling thread, in the order of the items, when the item's work is done.
    std::function<void(std::size_t item)> take;
    /// On the calling thread, when nothing is left to do but to wait for this item.
    std::function<void(std::size_t item)> waitFor;
};

/// How many threads the machine works on at once; 1 where that is not known.
std::size_t CoreCount();

/// Does the work on `count` items on up to `threads` threads, of which the calling one is one, or on as many
/// as the system gives. What the work on an item throws is thrown where the item would be taken; items behind
/// it may be worked on, but are not taken.
void WorkInOrder(std::size_t count, std::size_t threads, const ItemWork& items);

} // namespace styleconv
