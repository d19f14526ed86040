// The lines of a file as a program that reads it in text mode, line by line, sees them.
#pragma once

#include "StyleConversion/encoding/LineCursor.h"

#include <cstddef>
#include <string_view>

namespace pattern {

/// On every system alike: CR LF counts as LF, the byte 0x1A ends the file, and text behind the last LF is a
/// line of its own.
class TextModeLines {
public:
    enum class Step { kLine, kTooLong, kEnd };

    /// `bytes` must outlive this object and the lines that it gives.
    explicit TextModeLines(std::string_view bytes);

    /// Gives the next line without its end. A NUL ends the text of its line, but what stands behind it counts
    /// towards `longest`, the length above which a line is too long: it is cut there, and the whole has been
    /// passed.
    Step Next(std::size_t longest, std::string_view& line);

    /// The number of the line that Next looked at last, from 1.
    std::size_t GetLineNumber() const { return static_cast<std::size_t>(cursor_.LineNumber()); }

    /// How long that line is without its end, text behind a NUL included.
    std::size_t GetLineLength() const { return length_; }

private:
    encoding::LineCursor cursor_;
    std::size_t length_ = 0;
};

} // namespace pattern
