// The growable array in which the library hands out lists.
#pragma once

#include <cstddef>
#include <vector>

/// An array with a logical length (how many elements it holds) and a grow length (by how many elements, at
/// the least, its storage grows when it is full). Frees its storage with itself. Running out of memory throws
/// std::bad_alloc. Indices are not checked: they must be from 0 to logicalLength() - 1.
template <class T>
class OxArray {
public:
    /// An empty array with room for `physicalLength` elements. A grow length below 1 counts as 1.
    explicit OxArray(int physicalLength = 0, int growLength = 8)
        : growLength_(growLength < 1 ? 1 : growLength) {
        if (physicalLength > 0) {
            elements_.reserve(static_cast<std::size_t>(physicalLength));
        }
    }

    /// How many elements the array holds, under two names; how many it has room for; and how it grows.
    int logicalLength() const { return static_cast<int>(elements_.size()); }
    int length() const { return logicalLength(); }
    int physicalLength() const { return static_cast<int>(elements_.capacity()); }
    int growLength() const { return growLength_; }
    bool isEmpty() const { return elements_.empty(); }

    /// The element at `index`, from 0 to length() - 1, which is not checked. It stays the array's.
    T& operator[](int index) { return elements_[static_cast<std::size_t>(index)]; }
    const T& operator[](int index) const { return elements_[static_cast<std::size_t>(index)]; }
    T& at(int index) { return (*this)[index]; }
    const T& at(int index) const { return (*this)[index]; }

    /// Adds `value` at the end and returns its index.
    int append(const T& value) {
        if (elements_.size() == elements_.capacity()) {
            setPhysicalLength(grownLength());
        }
        elements_.push_back(value);
        return logicalLength() - 1;
    }

    /// Makes room for `length` elements; never shrinks.
    void setPhysicalLength(int length) {
        if (length > 0) {
            elements_.reserve(static_cast<std::size_t>(length));
        }
    }

    /// Drops elements behind `length`, or adds default ones up to it.
    void setLogicalLength(int length) { elements_.resize(length < 0 ? 0 : static_cast<std::size_t>(length)); }
    void removeAll() { elements_.clear(); }

    /// The elements one behind the other; null or dangling when empty, and not valid after the next change.
    T* asArrayPtr() { return elements_.data(); }
    const T* asArrayPtr() const { return elements_.data(); }

    /// For a loop over all elements.
    const T* begin() const { return elements_.data(); }
    const T* end() const { return elements_.data() + elements_.size(); }

private:
    // Half as much again for long arrays, so that appending a million elements stays linear.
    int grownLength() const {
        const int length = physicalLength();
        return length + (length / 2 > growLength_ ? length / 2 : growLength_);
    }

    std::vector<T> elements_;
    int growLength_;
};
