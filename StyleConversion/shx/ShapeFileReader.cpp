// The operations on shape files, and the order of what a file holds.
#include "StyleConversion/shx/ShapeFileReader.h"

#include "StyleConversion/platform/FileBytes.h"
#include "StyleConversion/shx/ShapeEntryReader.h"
#include "StyleConversion/shx/ShapeHeaderReader.h"
#include "StyleConversion/shx/ShapeReading.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <string>
#include <string_view>

namespace ShxUtility {
namespace {

constexpr std::size_t kRangeSize = 6;
constexpr std::size_t kIndexEntrySize = 4;
constexpr std::string_view kTrailer = "EOF";

// Shapes to make room for before any of them has been read, so that a count that nothing stands behind costs
// little.
constexpr std::size_t kMostShapesReserved = 4096;

void ReserveShapes(ShapesInFile& out, std::size_t count) {
    out.shapes.reserve(out.shapes.size() + std::min(count, kMostShapesReserved));
}

ShxResult ReadTrailer(ShapeReading& reading) {
    const std::uint64_t start = reading.cursor.Offset();
    reading.report.trailer = start;
    const std::string_view trailer = reading.cursor.Take(kTrailer.size());
    if (trailer == kTrailer) {
        return kSuccess;
    }
    if (reading.policy.trailerMayBeMissing) {
        reading.report.trailerMissing = true;
        return kSuccess;
    }
    return trailer.size() < kTrailer.size() ? reading.FailHere(ShapeFileError::TrailerCutShort)
                                            : reading.Fail(ShapeFileError::TrailerWrong, start);
}

ShxResult ReadShapesBody(ShapeReading& reading, ShapesInFile& out) {
    // First and last number, which nobody needs, and the count.
    const std::string_view range = reading.cursor.Take(kRangeSize);
    if (range.size() < kRangeSize) {
        return reading.FailHere(ShapeFileError::CountCutShort);
    }
    const std::size_t shapeCount = LittleEndian(range.substr(kRangeSize - 2));
    const std::string_view index = reading.cursor.Take(shapeCount * kIndexEntrySize);
    if (index.size() < shapeCount * kIndexEntrySize) {
        return reading.FailHere(ShapeFileError::IndexCutShort);
    }
    ReserveShapes(out, shapeCount);
    for (std::size_t i = 0; i < index.size(); i += kIndexEntrySize) {
        const std::uint64_t start = reading.cursor.Offset();
        const ShxResult result = ReadShapeEntry(reading, out, LittleEndian(index.substr(i)),
                                                LittleEndian(index.substr(i + 2)), out.kind, start);
        if (result != kSuccess) {
            return result;
        }
    }
    return ReadTrailer(reading);
}

ShxResult ReadUnifontBody(ShapeReading& reading, ShapesInFile& out) {
    const std::string_view count = reading.cursor.Take(2);
    if (count.size() < 2) {
        return reading.FailHere(ShapeFileError::CountCutShort);
    }
    const std::size_t shapeCount = LittleEndian(count);
    ReserveShapes(out, shapeCount);
    for (std::size_t i = 0; i < shapeCount; ++i) {
        const std::uint64_t start = reading.cursor.Offset();
        const std::string_view head = reading.cursor.Take(4);
        if (head.size() < 4) {
            return reading.FailHere(ShapeFileError::EntryHeadCutShort);
        }
        const ShxResult result =
            ReadShapeEntry(reading, out, LittleEndian(head), LittleEndian(head.substr(2)), out.kind, start);
        if (result != kSuccess) {
            return result;
        }
    }
    return kSuccess;
}

ShxResult ReadFile(ShapeReading& reading, ShapesInFile& out, std::uint32_t acceptedKinds) {
    ShxResult result = ReadFileHeader(reading, out, acceptedKinds);
    if (result != kSuccess) {
        return result;
    }
    out.fontInfo.clear();
    out.numberIndex.clear();
    out.nameIndex.clear();
    reading.nameHint = out.nameIndex.end();
    result = out.kind == kShapes ? ReadShapesBody(reading, out) : ReadUnifontBody(reading, out);
    reading.report.end = reading.cursor.Offset();
    return result;
}

ShxResult Load(ShapeReading& reading, ShapesInFile& out, std::uint32_t acceptedKinds) {
    try {
        return ReadFile(reading, out, acceptedKinds);
    } catch (const std::bad_alloc&) {
        return reading.FailHere(ShapeFileError::OutOfMemory);
    }
}

} // namespace

ShxResult LoadShapeFile(std::string_view bytes, ShapesInFile& out, std::uint32_t acceptedKinds,
                        ShapeFileReport& report, const ShapeFilePolicy& policy) {
    ShapeReading reading(bytes, out, report, policy);
    return Load(reading, out, acceptedKinds);
}

ShxResult LoadShapeFile(std::string_view bytes, ShapesInFile& out, std::uint32_t acceptedKinds) {
    ShapeFileReport unread;
    return LoadShapeFile(bytes, out, acceptedKinds, unread);
}

ShxResult LoadShapeFile(std::FILE* stream, ShapesInFile& out, std::uint32_t acceptedKinds) {
    if (stream == nullptr) {
        return kNoStream;
    }
    const long start = std::ftell(stream);
    std::string bytes;
    try {
        static_cast<void>(platform::ReadToEnd(stream, bytes)); // an error cuts the file short
    } catch (const std::bad_alloc&) {
        return kOutOfMemory;
    }
    ShapeFileReport unread;
    ShapeReading reading(bytes, out, unread);
    const ShxResult result = Load(reading, out, acceptedKinds);
    if (result == kSuccess && start >= 0) {
        static_cast<void>(std::fseek(stream, start + static_cast<long>(reading.cursor.Offset()), SEEK_SET));
    }
    return result;
}

} // namespace ShxUtility
