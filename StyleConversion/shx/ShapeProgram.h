// A shape's program as instructions, and its translation from bytes.
#pragma once

#include "StyleConversion/shx/ShxResult.h"

#include <cstdint>
#include <vector>

namespace ShxUtility {

enum class ShapeOp : std::int32_t {
    PenDown = 1,
    PenUp = 2,
    DivideScale = 3,
    MultiplyScale = 4,
    PushPosition = 5,
    PopPosition = 6,
    Subshape = 7,
    Move = 18,
    Arc = 19,
};

struct ShapeInstruction {
    /// Move: displacement along x, in shape units. Arc: start angle in degrees, counter-clockwise from the x
    /// axis. DivideScale, MultiplyScale: the factor, 1 to 255. Subshape: its number, 0 to 65535.
    double x = 0.0;
    /// Move: displacement along y, in shape units. Arc: end angle in degrees; end > start is
    /// counter-clockwise.
    double y = 0.0;
    /// Arc: in shape units.
    double radius = 0.0;
    /// To be carried out in vertical drawing only.
    bool verticalOnly = false;
    ShapeOp op = ShapeOp::PenDown;
};

using ShapeInstructions = std::vector<ShapeInstruction>;

/// Appends the instructions of the `length` bytes at `bytes` to `out`. `kind` is a ShapeFileKind and tells
/// how many bytes a subshape's number has: one in kShapes and kFont, two in kUnifont.
///
/// After a failure `out` holds the instructions before the faulty code, and of a code with many parts
/// (several displacements, several bulge arcs) those before the faulty part. Returns kSuccess, kMalformed,
/// kOutOfMemory, or kUnsupported for a subshape in any other kind.
ShxResult DecodeShape(ShapeInstructions& out, const std::uint8_t* bytes, std::uint16_t length,
                      std::int32_t kind);

} // namespace ShxUtility
