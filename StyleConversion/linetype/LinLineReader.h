// Reads a linetype file line by line: header lines, and the lines of patterns.
#pragma once

#include "StyleConversion/encoding/LineCursor.h"
#include "StyleConversion/linetype/LinErrors.h"
#include "StyleConversion/linetype/LinPolicy.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace LineConverter {

/// `text` without the blanks before it, or behind it.
std::string_view PastBlanks(std::string_view text);
std::string_view WithoutTrailingBlanks(std::string_view text);

/// Whether the line begins as a pattern does in the loosest form: a letter of alignment, and a comma.
bool LooksLikePattern(std::string_view text);

/// Reads pieces of at most kLineBufferSize - 1 bytes, each up to and with its line end; the rest of a longer
/// line is a piece of its own, unless the policy takes lines of any length. A NUL byte ends the text of its
/// piece.
class LinLineReader {
public:
    /// All are borrowed. `log` receives what the policy tolerates.
    LinLineReader(std::string_view bytes, const LinPolicy& policy, LinErrorLog& log);

    /// The text of the next header: a line whose first byte is "*", without the "*", a comment and trailing
    /// blanks. Lines of another kind, headers without text and headers that begin with a comma are skipped.
    /// None at the end of the file.
    std::optional<std::string_view> ReadHeaderLine();

    /// The next line that is not blank, without leading blanks, a comment and trailing blanks. None at the
    /// end of the file, and where the form is loose at a header, which is then read next.
    std::optional<std::string_view> ReadContentLine();

    /// The number of the line that was read last, from 1.
    std::uint32_t LineNumber() const { return static_cast<std::uint32_t>(cursor_.LineNumber()); }

    /// Which byte of its line `at` points to, from 1. It must point into the text that ReadContentLine
    /// returned last, and nothing else may have been read since.
    std::uint64_t ColumnOf(const char* at) const { return cursor_.ColumnOf(at); }

    /// The text that ReadContentLine returned last; empty at first.
    std::string_view ContentText() const { return contentText_; }

private:
    bool Next();
    std::optional<std::string_view> HeaderText();
    void NoteSkippedLine();
    void NoteLongLine(bool isRead);

    const LinPolicy& policy_;
    LinErrorLog& log_;
    bool hasByteOrderMark_ = false; // skipped
    encoding::LineCursor cursor_;
    std::string_view contentText_;
};

} // namespace LineConverter
