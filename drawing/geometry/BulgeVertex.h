// Vertices of polylines.
#pragma once

#include "drawing/geometry/Point.h"

#include <cmath>

namespace geometry {

/// A vertex of a polyline; the bulge belongs to the segment that leaves it: the tangent of a quarter of the
/// arc's included angle, positive when it runs counter-clockwise, 0 for a straight line.
struct BulgeVertex {
    Point point;
    double bulge = 0.0;
};

/// The bulge of the arc from one point through another to a third. The angle between the chords of its two
/// parts is half of its sweep.
inline double BulgeThrough(const Point& first, const Point& through, const Point& last) {
    const double x1 = through.x - first.x;
    const double y1 = through.y - first.y;
    const double x2 = last.x - through.x;
    const double y2 = last.y - through.y;
    return std::tan(0.5 * std::atan2(x1 * y2 - y1 * x2, x1 * x2 + y1 * y2));
}

} // namespace geometry
