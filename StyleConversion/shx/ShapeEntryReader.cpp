// An entry's name, and then its program or the font information.
#include "StyleConversion/shx/ShapeEntryReader.h"

#include "StyleConversion/shx/Limits.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

namespace ShxUtility {
namespace {

// Appends the bytes up to the terminator to `name`; false at the end of the file. A name is not held to the
// entry's length: that is looked at when it has been read.
bool ReadName(encoding::ByteCursor& cursor, std::string& name) {
    std::uint8_t byte = 0;
    while (cursor.Read(byte)) {
        if (byte == 0) {
            return true;
        }
        name.push_back(static_cast<char>(byte));
    }
    return false;
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
        return reading.Fail(ShapeFileError::NumberTwice, start);
    }
    if (!shape.name.empty()) {
        reading.nameHint = std::next(out.nameIndex.try_emplace(reading.nameHint, shape.name, position));
    }
    shape.data.Resize(length);
    const std::string_view program = reading.cursor.Take(length);
    std::copy(program.begin(), program.end(), shape.data.data());
    return program.size() == length ? kSuccess : reading.FailHere(ShapeFileError::ProgramCutShort);
}

ShxResult ReadFontInfo(ShapeReading& reading, ShapesInFile& out, std::size_t length, ShapeFileKind kind,
                       std::uint64_t start) {
    if (!out.fontInfo.empty()) {
        return reading.Fail(ShapeFileError::FontInfoTwice, start);
    }
    if (length < kShortestFontInfo) {
        return reading.Fail(ShapeFileError::FontInfoTooShort, start);
    }
    if (kind == kShapes) {
        out.kind = kFont;
    }
    const std::size_t wanted = std::min(length, kLongestFontInfo);
    const std::string_view bytes = reading.cursor.Take(wanted);
    if (bytes.size() != wanted) {
        return reading.FailHere(ShapeFileError::FontInfoCutShort);
    }
    if (wanted != length) {
        return reading.Fail(ShapeFileError::FontInfoTooLong, start);
    }
    out.fontInfo.insert(out.fontInfo.end(), bytes.begin(), bytes.end());
    return kSuccess;
}

} // namespace

ShxResult ReadShapeEntry(ShapeReading& reading, ShapesInFile& out, std::uint16_t number, std::uint16_t length,
                         ShapeFileKind kind, std::uint64_t start) {
    reading.report.shapeNumber = number;
    Shape& shape = out.shapes.emplace_back();
    shape.number = number;
    const std::uint64_t nameStart = reading.cursor.Offset();
    if (!ReadName(reading.cursor, shape.name)) {
        return reading.FailHere(ShapeFileError::NameCutShort);
    }
    const std::uint64_t used = reading.cursor.Offset() - nameStart;
    if (used >= length) {
        return reading.Fail(ShapeFileError::NameFillsEntry, start);
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
