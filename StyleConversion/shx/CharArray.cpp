// The array of bytes and its ownership.
#include "StyleConversion/shx/CharArray.h"

#include <cstddef>
#include <cstring>
#include <utility>

namespace ShxUtility {

CharArray::CharArray(const CharArray& other) : size_(other.size_) {
    // An array whose allocation failed has a size but no bytes; so does its copy.
    if (other.data_ != nullptr) {
        data_ = new std::uint8_t[static_cast<std::size_t>(size_)];
        std::memcpy(data_, other.data_, static_cast<std::size_t>(size_));
    }
}

CharArray::CharArray(CharArray&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)), size_(std::exchange(other.size_, 0)) {}

CharArray& CharArray::operator=(const CharArray& other) {
    if (this != &other) {
        *this = CharArray(other);
    }
    return *this;
}

CharArray& CharArray::operator=(CharArray&& other) noexcept {
    if (this != &other) {
        delete[] data_;
        data_ = std::exchange(other.data_, nullptr);
        size_ = std::exchange(other.size_, 0);
    }
    return *this;
}

CharArray::~CharArray() {
    delete[] data_;
}

void CharArray::Resize(std::uint64_t count) {
    delete[] data_;
    data_ = nullptr;
    size_ = count;
    if (count != 0) {
        data_ = new std::uint8_t[static_cast<std::size_t>(count)];
    }
}

} // namespace ShxUtility
