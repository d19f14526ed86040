// Which rule of the format a shape file broke, and where. The library itself never reads it.
#pragma once

#include <cstdint>

namespace ShxUtility {

enum class ShapeFileError : std::int32_t {
    None,
    OutOfMemory,
    /// The file ends within the eleven bytes that every shape file begins with.
    MagicCutShort,
    MagicWrong,
    KindCutShort,
    /// No space within eight bytes.
    KindTooLong,
    KindUnknown,
    KindBigfont,
    KindNotAccepted,
    VersionCutShort,
    /// No 0x1A within 1024 bytes.
    VersionTooLong,
    VersionUnknown,
    CountCutShort,
    IndexCutShort,
    /// The file ends within the number or the length before an entry of a "unifont " file.
    EntryHeadCutShort,
    NameCutShort,
    /// The name and its terminator leave no byte of the entry's length.
    NameFillsEntry,
    NumberTwice,
    ProgramCutShort,
    FontInfoTwice,
    /// Fewer than three bytes.
    FontInfoTooShort,
    /// More than 1024 bytes.
    FontInfoTooLong,
    FontInfoCutShort,
    TrailerCutShort,
    TrailerWrong,
};

struct ShapeFileReport {
    ShapeFileError error = ShapeFileError::None;
    /// Of the invalid item (header field, index, entry, trailer), or, where the file ends too early, of that
    /// end. In bytes from where reading began.
    std::uint64_t offset = 0;
    /// The entry that was being read; 0 where there is none, and for the font information.
    std::uint16_t shapeNumber = 0;
    /// What the policy tolerated.
    bool otherMaker = false;
    bool trailerMissing = false;
    /// Where the trailer stands or should stand; 0 where reading did not get there.
    std::uint64_t trailer = 0;
    /// How many bytes were read.
    std::uint64_t end = 0;
};

} // namespace ShxUtility
