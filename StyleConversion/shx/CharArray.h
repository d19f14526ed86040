// An owned array of bytes of a size that is set once: a shape's program.
#pragma once

#include <cstdint>

namespace ShxUtility {

/// Owns an array of bytes, or none. data() is null where size() is 0, and also after a Resize whose
/// allocation failed or a move out of the object; nobody may read through it then.
class CharArray {
public:
    CharArray() = default;
    /// A deep copy: an array of the same size with the same bytes. May throw std::bad_alloc.
    CharArray(const CharArray& other);
    CharArray(CharArray&& other) noexcept;
    /// Deep copy; `this` is unchanged where the allocation throws.
    CharArray& operator=(const CharArray& other);
    CharArray& operator=(CharArray&& other) noexcept;
    virtual ~CharArray();

    /// Drops the old bytes and makes room for `count` new ones, whose values are undetermined. May throw
    /// std::bad_alloc: data() is null then and size() is `count` already.
    void Resize(std::uint64_t count);

    std::uint8_t* data() { return data_; }
    const std::uint8_t* data() const { return data_; }
    /// In bytes.
    std::uint64_t size() const { return size_; }

private:
    std::uint8_t* data_ = nullptr;
    std::uint64_t size_ = 0;
};

} // namespace ShxUtility
