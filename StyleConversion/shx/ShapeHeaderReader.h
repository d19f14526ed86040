// Reads the header of a shape file: magic, kind, version.
#pragma once

#include "StyleConversion/shx/ShapeReading.h"
#include "StyleConversion/shx/ShapesInFile.h"

#include <cstdint>
#include <string_view>

namespace ShxUtility {

/// What every shape file begins with.
inline constexpr std::string_view kSignature = "Vorlanx-86 ";

/// ReadFileHeader from a stream that is there.
ShxResult ReadHeader(ShapeReading& reading, ShapesInFile& out, std::uint32_t acceptedKinds);

} // namespace ShxUtility
