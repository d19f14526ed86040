// The smooth curve through given points.
#pragma once

#include "drawing/geometry/NurbsCurve.h"

#include <optional>
#include <vector>

namespace geometry {

/// Directions of travel at the two ends of a curve. Only the direction counts: the curve's parameter is chord
/// length, so its speed at an end is 1 whatever the length of the vector. A zero vector leaves its end free.
struct EndTangents {
    Vector start;
    Vector end;
};

/// The cubic curve with continuous second derivative through `points` in order. The parameter starts at 0 and
/// grows from point to point by their distance. At an end without tangent the second derivative is zero (a
/// natural end), so two points without tangents give a straight line.
///
/// Points that repeat their predecessor (within kSamePoint) are passed once. When only
/// one point is left the curve stays there, with the parameter from 0 to 1.
///
/// Refused, with `curve` left as it was: no points (kTooFewPoints), numbers that are not finite or too large.
Status InterpolateThroughPoints(const std::vector<Point>& points, const std::optional<EndTangents>& tangents,
                                NurbsCurve& curve);

} // namespace geometry
