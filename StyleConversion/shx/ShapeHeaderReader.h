// Reads the header of a shape file: magic, kind, version.
#pragma once

#include "StyleConversion/shx/ShapeReading.h"
#include "StyleConversion/shx/ShapesInFile.h"

#include <cstdint>
#include <string_view>

namespace ShxUtility {

/// What every shape file begins with.
inline constexpr std::string_view kSignature = "Vorlanx-86 ";

/// Reads the header up to its version and sets the kind and isVersion10 of `out`. The kind is set also where
/// it is then refused; a refused file's version is not read.
ShxResult ReadFileHeader(ShapeReading& reading, ShapesInFile& out, std::uint32_t acceptedKinds);

} // namespace ShxUtility
