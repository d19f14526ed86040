// The arc that a displacement and a bulge describe.
#pragma once

#include "StyleConversion/shx/ShapeProgram.h"

#include <cstdint>

namespace ShxUtility {

/// The arc from the current point by (`dx`, `dy`), in shape units, with the bulge `bulge` / 127: the tangent
/// of a quarter of its sweep, positive for counter-clockwise. A Move where the bulge or the displacement is
/// zero.
ShapeInstruction BulgeArc(std::int8_t dx, std::int8_t dy, std::int8_t bulge);

} // namespace ShxUtility
