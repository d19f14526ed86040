// Carries out a shape's instructions: draws it as a path.
#pragma once

#include "StyleConversion/shx/ShapeProgram.h"
#include "StyleConversion/shx/ShapesInFile.h"
#include "StyleConversion/shx/ShxResult.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ShxUtility {

/// Positions that a program has saved. Three of the four slots are used.
struct PositionStack {
    double x[4] = {};
    double y[4] = {};
    std::uint32_t count = 0;
};

/// Appends the path of `instructions` to `path`: "M x,y l dx,dy " for every drawn segment and "M x,y A ... "
/// for every arc, each a subpath of its own.
///
/// The state is the caller's, is changed in place, and is shared with subshapes:
/// - `x`, `y`: the current point, in the units of the path; where drawing starts and where it ended.
/// - `scale`: path units per shape unit. Programs change it, and what a subshape made of it stays.
/// - `positionStack`: with a count of 0 at the start.
/// - `activeSubshapes`: the subshapes being drawn, empty at the start; after a failure it is left as it was
///   then.
/// - `penDown`: put down at the start; arcs are drawn whatever it is.
///
/// `file` is where subshapes are looked up. `rotation` is in degrees, counter-clockwise. `vertical` carries
/// out what is for vertical drawing only; never so within subshapes.
///
/// After a failure the path holds what was drawn before it: drop it. Returns kSuccess, the failure of a
/// subshape's program (kMalformed), kOutOfMemory, kPositionStackFull, kPositionStackEmpty,
/// kRecursiveSubshape, kSubshapeNotFound or kUnknownInstruction.
///
/// Subshapes nest at most 257 deep; how often they are drawn is not bounded.
ShxResult DrawShape(std::wstring& path, double& x, double& y, double& scale, PositionStack& positionStack,
                    std::vector<std::uint16_t>& activeSubshapes, bool& penDown,
                    const ShapeInstructions& instructions, const ShapesInFile& file, double rotation,
                    bool vertical);

} // namespace ShxUtility
