// The ordered, owning collection of the symbol model.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace TylModel {

/// Keeps its items in the order in which they were adopted and deletes them with itself.
template <class T>
class TylOwnerCollection {
public:
    /// Appends `item`, which must not be null and must have no owner yet, and takes ownership of it. Returns
    /// its index. When memory runs out, std::bad_alloc is thrown and `item` has been deleted.
    std::int32_t Adopt(T* item) {
        items_.push_back(std::unique_ptr<T>(item));
        return GetCount() - 1;
    }

    /// The number of items.
    std::int32_t GetCount() const { return static_cast<std::int32_t>(items_.size()); }

    /// The item at `index`, which must be from 0 to GetCount() - 1. It stays the collection's.
    T* GetAt(std::int32_t index) const { return items_[static_cast<std::size_t>(index)].get(); }

private:
    std::vector<std::unique_ptr<T>> items_;
};

} // namespace TylModel
