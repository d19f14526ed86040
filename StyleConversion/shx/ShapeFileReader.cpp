// The operations on shape files, and the order of what a file holds.
#include "StyleConversion/shx/ShapeFileReader.h"

#include "StyleConversion/shx/ShapeEntryReader.h"
#include "StyleConversion/shx/ShapeFileFault.h"
#include "StyleConversion/shx/ShapeHeaderReader.h"
#include "StyleConversion/shx/ShapeReading.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>
#include <vector>

namespace ShxUtility {
namespace {

constexpr std::size_t kIndexEntrySize = 4;
constexpr std::size_t kTrailerSize = 3;

// Shapes to make room for before any of them has been read, so that a count that nothing stands behind costs
// little.
constexpr std::size_t kMostReserved = 4096;

void ReserveShapes(ShapesInFile& out, std::size_t count) {
    out.shapes.reserve(out.shapes.size() + std::min(count, kMostReserved));
}

ShxResult ReadTrailer(ShapeReading& reading) {
    const std::uint64_t start = reading.stream.Offset();
    reading.report.trailer = start;
    char trailer[kTrailerSize] = {};
    if (reading.policy.trailerMayBeMissing) {
        const bool isThere = reading.stream.Read(trailer, kTrailerSize) == kTrailerSize &&
                             std::memcmp(trailer, "EOF", kTrailerSize) == 0;
        reading.report.trailerMissing = !isThere;
        return kSuccess;
    }
    if (reading.stream.Read(trailer, kTrailerSize) != kTrailerSize) {
        return reading.FailHere(ShapeFileFault::TrailerCutShort);
    }
    if (std::memcmp(trailer, "EOF", kTrailerSize) != 0) {
        return reading.Fail(ShapeFileFault::TrailerWrong, start);
    }
    return kSuccess;
}

ShxResult ReadShapesBody(ShapeReading& reading, ShapesInFile& out) {
    // First number, last number and count go through one variable and only the count stays. None of the three
    // reads is checked: where the file ends here, what follows them is short as well.
    std::uint8_t count[2] = {};
    std::size_t countBytes = 0;
    for (int i = 0; i < 3; ++i) {
        countBytes = reading.stream.Read(count, sizeof count);
    }
    const bool countCut = countBytes != sizeof count;

    const std::size_t shapeCount = LittleEndian(count);
    std::vector<std::uint8_t> index(shapeCount * kIndexEntrySize);
    if (reading.stream.Read(index.data(), index.size()) != index.size()) {
        return reading.FailHere(countCut ? ShapeFileFault::CountCutShort : ShapeFileFault::IndexCutShort);
    }
    ReserveShapes(out, shapeCount);
    for (std::size_t i = 0; i < index.size(); i += kIndexEntrySize) {
        const std::uint64_t start = reading.stream.Offset();
        const ShxResult result =
            ReadEntry(reading, out, LittleEndian(&index[i]), LittleEndian(&index[i + 2]), out.kind, start);
        if (result != kSuccess) {
            return result;
        }
    }
    const ShxResult result = ReadTrailer(reading);
    return result != kSuccess && countCut ? reading.FailHere(ShapeFileFault::CountCutShort) : result;
}

ShxResult ReadUnifontBody(ShapeReading& reading, ShapesInFile& out) {
    std::uint8_t count[2];
    if (reading.stream.Read(count, sizeof count) != sizeof count) {
        return reading.FailHere(ShapeFileFault::CountCutShort);
    }
    const std::size_t shapeCount = LittleEndian(count);
    ReserveShapes(out, shapeCount);
    for (std::size_t i = 0; i < shapeCount; ++i) {
        const std::uint64_t start = reading.stream.Offset();
        std::uint8_t head[4];
        if (reading.stream.Read(head, sizeof head) != sizeof head) {
            return reading.FailHere(ShapeFileFault::EntryHeadCutShort);
        }
        const ShxResult result =
            ReadEntry(reading, out, LittleEndian(head), LittleEndian(head + 2), out.kind, start);
        if (result != kSuccess) {
            return result;
        }
    }
    return kSuccess;
}

ShxResult ReadFile(ShapeReading& reading, ShapesInFile& out, std::uint32_t acceptedKinds) {
    ShxResult result = ReadHeader(reading, out, acceptedKinds);
    if (result != kSuccess) {
        return result;
    }
    out.fontInfo.clear();
    out.numberIndex.clear();
    out.nameIndex.clear();
    reading.nameHint = out.nameIndex.end();
    result = out.kind == kShapes ? ReadShapesBody(reading, out) : ReadUnifontBody(reading, out);
    reading.report.end = reading.stream.Offset();
    if (result == kSuccess && !reading.report.trailerMissing && reading.stream.EndOfFileIndicator()) {
        return reading.FailHere(ShapeFileFault::EndOfFileIndicator);
    }
    return result;
}

} // namespace

ShxResult LoadShapeFile(std::FILE* stream, ShapesInFile& out, std::uint32_t acceptedKinds,
                        ShapeFileFaultReport& report, const ShapeFilePolicy& policy) {
    ShapeReading reading(stream, out, report, policy);
    if (stream == nullptr) {
        return reading.FailHere(ShapeFileFault::NoStream);
    }
    try {
        return ReadFile(reading, out, acceptedKinds);
    } catch (const std::bad_alloc&) {
        return reading.FailHere(ShapeFileFault::OutOfMemory);
    }
}

ShxResult LoadShapeFile(std::FILE* stream, ShapesInFile& out, std::uint32_t acceptedKinds) {
    ShapeFileFaultReport unread;
    return LoadShapeFile(stream, out, acceptedKinds, unread);
}

ShxResult ReadFileHeader(std::FILE* stream, ShapesInFile& out, std::uint32_t acceptedKinds) {
    ShapeFileFaultReport unread;
    ShapeReading reading(stream, out, unread);
    if (stream == nullptr) {
        return kNoStream;
    }
    return ReadHeader(reading, out, acceptedKinds);
}

ShxResult ReadShapeEntry(std::FILE* stream, ShapesInFile& out, std::uint16_t number, std::uint16_t length,
                         ShapeFileKind kind) {
    ShapeFileFaultReport unread;
    ShapeReading reading(stream, out, unread);
    if (stream == nullptr) {
        return kNoStream;
    }
    try {
        return ReadEntry(reading, out, number, length, kind, 0);
    } catch (const std::bad_alloc&) {
        return kOutOfMemory;
    }
}

} // namespace ShxUtility
