// Reads one entry of a shape file: a shape, or the font information.
#pragma once

#include "StyleConversion/shx/ShapeReading.h"
#include "StyleConversion/shx/ShapesInFile.h"

#include <cstdint>

namespace ShxUtility {

/// ReadShapeEntry from a stream that is there. `start` is the offset to report for a fault of the entry as a
/// whole. May throw std::bad_alloc.
ShxResult ReadEntry(ShapeReading& reading, ShapesInFile& out, std::uint16_t number, std::uint16_t length,
                    ShapeFileKind kind, std::uint64_t start);

} // namespace ShxUtility
