// The ordered, owning collection of the symbol model.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace TylModel {

/// Keeps its items in the order in which they were adopted and deletes them with itself.
template <class T>
class TylOwnerCollection {
public:
    /// Appends `item`, which must not be null and must have no owner yet, and takes ownership of it. Returns
    /// its index. When memory runs out, std::bad_alloc is thrown and `item` has been deleted.
    std::int32_t Adopt(T* item) {
        std::unique_ptr<T> owned(item);
        if (items_.empty()) {
            items_.reserve(kFirstRoom);
        }
        items_.push_back(std::move(owned));
        return static_cast<std::int32_t>(items_.size() - 1);
    }

    /// The number of items.
    std::int32_t GetCount() const { return static_cast<std::int32_t>(items_.size()); }

    /// The item at `index`, which must be from 0 to GetCount() - 1. It stays the collection's.
    T* GetAt(std::int32_t index) const { return items_[static_cast<std::size_t>(index)].get(); }

private:
    // Items to make room for at first: most collections stay that small, and the smallest blocks of common
    // allocators hold as many pointers.
    static constexpr std::size_t kFirstRoom = 3;

    std::vector<std::unique_ptr<T>> items_;
};

} // namespace TylModel
