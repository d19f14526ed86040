// Reads a linetype file line by line: header lines, and the lines of patterns.
#pragma once

#include "StyleConversion/linetype/LinFaults.h"
#include "StyleConversion/linetype/LinLimits.h"
#include "StyleConversion/linetype/LinPolicy.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace LineConverter {

/// Reads pieces of at most kLineBufferSize - 1 bytes, each up to and with its line end; the rest of a longer
/// line is a piece of its own, unless the policy takes lines of any length. A NUL byte ends the text of its
/// piece.
class LinLineReader {
public:
    /// White space: the bytes 9 to 13 and 32.
    static bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
    static const char* PastBlanks(const char* text);
    /// Whether the line begins as a pattern does in the loosest form: a letter of alignment, and a comma.
    static bool LooksLikePattern(const char* text);

    LinLineReader() = default;
    LinLineReader(const LinLineReader&) = delete;
    LinLineReader& operator=(const LinLineReader&) = delete;

    /// Reads from `stream`, which is borrowed, from its current position on. Forgets what was read before.
    /// What `policy` forgives is told to `log`, which is borrowed and may be null where it forgives nothing.
    void Start(std::FILE* stream, const LinPolicy& policy = {}, LinFaultLog* log = nullptr);

    /// The text of the next header: a line whose first byte is "*", without the "*", a comment and trailing
    /// blanks. Lines of another kind, headers without text and headers that begin with a comma are passed
    /// over. Null at end of file. Valid until the next call.
    const char* ReadHeaderLine();

    /// The next line that is not blank, without leading blanks, a comment and trailing blanks. Null at end of
    /// file, and where the form is loose at a header, which is then read next. Valid until the next call.
    const char* ReadContentLine();

    /// The number of the line that was read last, from 1. Unlike pieces, lines are counted as an editor does.
    std::uint64_t LineNumber() const { return line_; }

    /// Which byte of its line `at` points to, from 1. It must point into the text that ReadContentLine
    /// returned last, and nothing else may have been read since.
    std::uint64_t ColumnOf(const char* at) const;

    /// The text that ReadContentLine returned last; empty at first.
    const char* ContentText() const { return contentText_; }

private:
    using Line = std::vector<char>;

    // Bytes that are read at once.
    static constexpr std::size_t kChunkSize = 65536;

    bool ReadPiece(Line& line);
    bool MakeRoom(Line& line) const;
    void SkipByteOrderMark();
    const char* HeaderText();
    void NotePassedLine();
    void NoteLongLine(const Line& line, bool isRead);
    bool Refill();

    std::FILE* stream_ = nullptr;
    LinPolicy policy_;
    LinFaultLog* log_ = nullptr;
    bool byteOrderMark_ = false;    // skipped
    bool headerHeld_ = false;       // header_ has a header that nobody has asked for yet
    std::uint64_t line_ = 0;        // the line that the last piece belongs to
    std::uint64_t pieceColumn_ = 0; // bytes of that line before the piece
    std::uint64_t pieceLength_ = 0;
    bool lineEnded_ = true;          // whether the last piece had its line's end
    const char* position_ = nullptr; // in chunk_
    const char* end_ = nullptr;
    Line header_ = Line(kLineBufferSize);
    Line content_ = Line(kLineBufferSize);
    const char* contentText_ = content_.data();
    std::array<char, kChunkSize> chunk_{};
};

} // namespace LineConverter
