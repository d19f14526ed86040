// An entry's name, and then its program or the font information.
#include "StyleConversion/shx/ShapeEntryReader.h"

#include "StyleConversion/shx/Limits.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>

namespace ShxUtility {
namespace {

// Appends the bytes up to the terminator to `name`; false at the end of the file. A name is not held to the
// entry's length: that is looked at when it has been read.
bool ReadName(ShapeStream& stream, std::string& name) {
    for (int byte = stream.ReadByte(); byte != 0; byte = stream.ReadByte()) {
        if (byte == EOF) {
            return false;
        }
        name.push_back(static_cast<char>(byte));
    }
    return true;
}

// False where the number is there already. Numbers mostly ascend, so the end is the place to try first.
bool IndexNumber(ShapesInFile& out, std::uint16_t number, std::size_t position) {
    const std::size_t before = out.numberIndex.size();
    out.numberIndex.try_emplace(out.numberIndex.end(), number, position);
    return out.numberIndex.size() != before;
}

ShxResult ReadProgram(ShapeReading& reading, ShapesInFile& out, std::size_t length, std::uint64_t start) {
    Shape& shape = out.shapes.back();
    const std::size_t position = out.shapes.size() - 1;
    if (!IndexNumber(out, shape.number, position)) {
        return reading.Fail(ShapeFileFault::NumberTwice, start);
    }
    if (!shape.name.empty()) {
        reading.nameHint = std::next(out.nameIndex.try_emplace(reading.nameHint, shape.name, position));
    }
    shape.data.Resize(length);
    if (reading.stream.Read(shape.data.data(), length) != length) {
        return reading.FailHere(ShapeFileFault::ProgramCutShort);
    }
    return kSuccess;
}

ShxResult ReadFontInfo(ShapeReading& reading, ShapesInFile& out, std::size_t length, ShapeFileKind kind,
                       std::uint64_t start) {
    if (!out.fontInfo.empty()) {
        return reading.Fail(ShapeFileFault::FontInfoTwice, start);
    }
    if (length < kShortestFontInfo) {
        return reading.Fail(ShapeFileFault::FontInfoTooShort, start);
    }
    if (kind == kShapes) {
        out.kind = kFont;
    }
    std::uint8_t bytes[kLongestFontInfo];
    const std::size_t wanted = std::min(length, kLongestFontInfo);
    const std::size_t got = reading.stream.Read(bytes, wanted);
    if (got != wanted) {
        return reading.FailHere(ShapeFileFault::FontInfoCutShort);
    }
    if (got != length) {
        return reading.Fail(ShapeFileFault::FontInfoTooLong, start);
    }
    out.fontInfo.insert(out.fontInfo.end(), bytes, bytes + length);
    return kSuccess;
}

} // namespace

ShxResult ReadEntry(ShapeReading& reading, ShapesInFile& out, std::uint16_t number, std::uint16_t length,
                    ShapeFileKind kind, std::uint64_t start) {
    reading.report.shapeNumber = number;
    Shape& shape = out.shapes.emplace_back();
    shape.number = number;
    const std::uint64_t nameStart = reading.stream.Offset();
    if (!ReadName(reading.stream, shape.name)) {
        return reading.FailHere(ShapeFileFault::NameCutShort);
    }
    const std::uint64_t used = reading.stream.Offset() - nameStart;
    if (used >= length) {
        return reading.Fail(ShapeFileFault::NameFillsEntry, start);
    }
    const std::size_t rest = length - static_cast<std::size_t>(used);
    const ShxResult result =
        number != 0 ? ReadProgram(reading, out, rest, start) : ReadFontInfo(reading, out, rest, kind, start);
    if (result == kSuccess) {
        reading.report.shapeNumber = 0;
    }
    return result;
}

} // namespace ShxUtility
