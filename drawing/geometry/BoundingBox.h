// The smallest upright box around a curve.
#pragma once

#include "drawing/geometry/NurbsCurve.h"

namespace geometry {

struct Box {
    Point minimum;
    Point maximum;
};

/// The box of the curve over its whole interval: of the curve itself, not of its control points. Each side is
/// true to 1e-12 of the larger extent of the control points, or to the rounding of the coordinates where that
/// is more. A curve whose control points agree in x (or y) gets an extent of exactly zero there.
Box BoundingBox(const NurbsCurve& curve);

} // namespace geometry
