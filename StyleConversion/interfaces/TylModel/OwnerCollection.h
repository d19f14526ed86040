// The ordered, owning collection of the symbol model.
#pragma once

#include <array>
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
        if (count_ < kFirst) {
            first_[count_] = std::move(owned);
        } else {
            others_.push_back(std::move(owned));
        }
        return static_cast<std::int32_t>(count_++);
    }

    /// The number of items.
    std::int32_t GetCount() const { return static_cast<std::int32_t>(count_); }

    /// The item at `index`, which must be from 0 to GetCount() - 1. It stays the collection's.
    T* GetAt(std::int32_t index) const {
        const auto place = static_cast<std::size_t>(index);
        return (place < kFirst ? first_[place] : others_[place - kFirst]).get();
    }

private:
    // Most collections have no more items than these, and then take no memory of their own.
    static constexpr std::size_t kFirst = 2;

    std::size_t count_ = 0;
    std::array<std::unique_ptr<T>, kFirst> first_;
    std::vector<std::unique_ptr<T>> others_;
};

} // namespace TylModel
