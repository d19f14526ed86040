// Reads the header of a shape file: magic, kind, version.
#pragma once

#include "StyleConversion/shx/ShapeReading.h"
#include "StyleConversion/shx/ShapesInFile.h"

#include <cstdint>

namespace ShxUtility {

/// ReadFileHeader from a stream that is there.
ShxResult ReadHeader(ShapeReading& reading, ShapesInFile& out, std::uint32_t acceptedKinds);

} // namespace ShxUtility
