// The pairs of a DXF file: a group code, which says what a value means, and the value.
#pragma once

#include "exchange/DxfPieces.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace exchange {

/// A pair as it stands in the file.
struct DxfPair {
    int code = 0;
    bool isBinary = false;
    std::string_view value; ///< the line without its end, or the bytes of a binary value
    std::size_t place = 0;  ///< line of the group code, from 1; in binary files its byte, from 0

    /// Whether the file holds the value as characters, not as the bytes of a number or of binary data.
    bool IsText() const;
    /// The value without blanks at its ends: a word of the format, or a name.
    std::string_view Word() const;
    /// The value as a number; nothing where it is none, or not finite.
    std::optional<double> Number() const;
    /// The value as a whole number; nothing where it is none, or has a fraction, or is beyond 32 bits.
    std::optional<std::int32_t> Integer() const;
    /// The value as a handle, a whole number in hexadecimal digits; 0 where it is none.
    std::uint64_t Handle() const;
};

/// What the texts of a file are written in, as far as it is read.
enum class DxfEncoding : std::uint8_t {
    kAscii,
    kUtf8,
    kOther,         ///< and all before the first one that is no UTF-8 were ASCII
    kOtherThanUtf8, ///< and some before it were UTF-8
};

/// Hands out the pairs of a file from the first to the last.
class DxfPairCursor {
public:
    explicit DxfPairCursor(DxfPieces pieces);

    enum class Outcome {
        kPair,
        kEnd,    ///< the file ends here
        kNoCode, ///< a line that must hold a group code holds something else
        kCut,    ///< the file ends within a pair
    };
    /// The next pair, which is valid until Release is called for a later one. After any other outcome than a
    /// pair there are no more; `pair` then has the place.
    Outcome Next(DxfPair& pair);
    /// No pair is in use any more but the last one.
    void Release() { pieces_.Release(); }

    /// Of the values that were read up to now.
    DxfEncoding Encoding() const { return encoding_; }

    /// Places are bytes, not lines.
    bool IsBinary() const { return isBinary_; }

private:
    Outcome NextOfText(DxfPair& pair);
    Outcome NextOfBinary(DxfPair& pair);
    bool TakeLine(std::string_view& line);
    bool TakeUpTo(char end, std::string_view& taken);
    bool Take(std::size_t count, std::string_view& taken);
    void FindLineEnd();
    void NoteEncoding(const DxfPair& pair);

    DxfPieces pieces_;
    DxfEncoding encoding_ = DxfEncoding::kAscii;
    std::size_t line_ = 0;
    char lineEnd_ = '\n';
    bool isBinary_ = false;
    bool hasShortCodes_ = false; // of binary files: group codes of one byte, as old files have them
};

} // namespace exchange
