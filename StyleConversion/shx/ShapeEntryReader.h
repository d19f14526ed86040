// Reads one entry of a shape file: a shape, or the font information.
#pragma once

#include "StyleConversion/shx/ShapeReading.h"
#include "StyleConversion/shx/ShapesInFile.h"

#include <cstdint>

namespace ShxUtility {

/// Reads one entry: its name, a zero byte, and its program, `length` bytes together. Appends a shape to
/// `out`, which stays there after a failure, and enters it in the indexes.
///
/// A number that is known already is kMalformed. Number 0 is the font information: its bytes go to
/// `out.fontInfo`, and in a file of `kind` kShapes the kind of `out` becomes kFont. `start` is the offset to
/// report for an error of the entry as a whole. May throw std::bad_alloc.
ShxResult ReadShapeEntry(ShapeReading& reading, ShapesInFile& out, std::uint16_t number, std::uint16_t length,
                         ShapeFileKind kind, std::uint64_t start);

} // namespace ShxUtility
