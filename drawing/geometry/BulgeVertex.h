// Vertices of polylines.
#pragma once

#include "drawing/geometry/Point.h"

namespace geometry {

/// A vertex of a polyline; the bulge belongs to the segment that leaves it: the tangent of a quarter of the
/// arc's included angle, positive when it runs counter-clockwise, 0 for a straight line.
struct BulgeVertex {
    Point point;
    double bulge = 0.0;
};

} // namespace geometry
