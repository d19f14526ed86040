// Where and why a shape file was refused: for whoever tells a person. The library itself never reads it.
#pragma once

#include "StyleConversion/shx/ShapeFilePolicy.h"
#include "StyleConversion/shx/ShapesInFile.h"
#include "StyleConversion/shx/ShxResult.h"

#include <cstdint>
#include <cstdio>

namespace ShxUtility {

enum class ShapeFileFault : std::int32_t {
    None,
    NoStream,
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
    /// All was read, but the stream had met its end before.
    EndOfFileIndicator,
};

struct ShapeFileFaultReport {
    ShapeFileFault fault = ShapeFileFault::None;
    /// Of the faulty item (header field, index, entry, trailer), or, where the file ends too early, of that
    /// end. In bytes from where reading began.
    std::uint64_t offset = 0;
    /// The entry that was being read; 0 where there is none, and for the font information.
    std::uint16_t shapeNumber = 0;
    /// What the policy forgave.
    bool otherMaker = false;
    bool trailerMissing = false;
    /// Where the trailer stands or should stand; 0 where reading did not get there.
    std::uint64_t trailer = 0;
    /// How many bytes were read.
    std::uint64_t end = 0;
};

/// LoadShapeFile, which also says where it stopped. `report` is reset first.
ShxResult LoadShapeFile(std::FILE* stream, ShapesInFile& out, std::uint32_t acceptedKinds,
                        ShapeFileFaultReport& report, const ShapeFilePolicy& policy = {});

} // namespace ShxUtility
