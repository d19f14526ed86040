// Hands out a text line by line, and long lines in pieces, as fgets does.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

namespace encoding {

class LineCursor {
public:
    static constexpr std::size_t kWholeLines = std::numeric_limits<std::size_t>::max();

    /// `bytes` must outlive the cursor and what it hands out.
    explicit LineCursor(std::string_view bytes) : rest_(bytes) {}

    /// Moves to the next piece: up to and with the next LF, or `longest` bytes where that comes later. What
    /// stands behind the last LF is a piece, too. False at the end.
    bool Next(std::size_t longest = kWholeLines);

    /// The piece with its LF.
    std::string_view Piece() const { return piece_; }

    /// What C's functions see of it: the text before its first NUL.
    std::string_view Text() const { return piece_.substr(0, piece_.find('\0')); }

    /// The number of the piece's line, from 1. Unlike pieces, lines are counted as an editor does.
    std::uint64_t LineNumber() const { return line_; }

    /// Which byte of its line `at` is, from 1; it points into the piece or to its end.
    std::uint64_t ColumnOf(const char* at) const {
        return column_ + static_cast<std::uint64_t>(at - piece_.data()) + 1;
    }

private:
    std::string_view rest_;
    std::string_view piece_;
    std::uint64_t line_ = 0;
    std::uint64_t column_ = 0; // bytes of the line before the piece
};

} // namespace encoding
