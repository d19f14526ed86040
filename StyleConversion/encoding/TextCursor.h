// Walks over the characters of a text, and never past its end.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace encoding {

/// The text holds no NUL, so that a NUL can stand for its end.
class TextCursor {
public:
    /// `text` must outlive the cursor and what it hands out.
    explicit TextCursor(std::string_view text) : text_(text) {}

    /// The character at the cursor, and the one before it; NUL where there is none.
    char Peek() const { return offset_ < text_.size() ? text_[offset_] : '\0'; }
    char Previous() const { return offset_ > 0 ? text_[offset_ - 1] : '\0'; }
    bool AtEnd() const { return offset_ == text_.size(); }

    /// From the cursor to the end.
    std::string_view Rest() const { return text_.substr(offset_); }

    /// Moves on, to the end at most.
    void Skip(std::size_t count = 1) { offset_ = std::min(text_.size(), offset_ + count); }

    /// Moves to the first of `marks`, or to the end, and returns what stands before it.
    std::string_view TakeUpTo(std::string_view marks) {
        const std::string_view taken = Rest().substr(0, Rest().find_first_of(marks));
        offset_ += taken.size();
        return taken;
    }

private:
    std::string_view text_;
    std::size_t offset_ = 0;
};

} // namespace encoding
