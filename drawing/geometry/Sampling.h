// Points of a curve so close together that the polyline through them stands in for the curve.
#pragma once

#include "drawing/geometry/NurbsCurve.h"

#include <vector>

namespace geometry {

struct CurveSample {
    double parameter = 0.0;
    Point point;
};

/// Samples the curve from parameter `start` to `end` (both are brought into the curve's interval first), in
/// ascending order with both ends among them. Between two samples next to each other the curve is nowhere
/// further than `tolerance` (drawing units) from the straight line between them; the number of samples is
/// near the smallest with which that is possible, and less than twice as large. Samples are put on kinks
/// where that costs nothing.
///
/// At least two samples come back for start < end, even where the curve stands still; one for start = end;
/// none for start > end or when either is not a number.
///
/// A tolerance below the rounding of the coordinates (and one that is zero, negative or not a number) is
/// raised to it; one that needs more samples than Limits.h allows is raised until they suffice. Always ends.
/// Returns the tolerance that holds for the samples: `tolerance` itself unless it was raised.
double SamplePoints(const NurbsCurve& curve, double start, double end, double tolerance,
                    std::vector<CurveSample>& samples);

} // namespace geometry
