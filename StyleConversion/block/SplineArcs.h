// Splines as circular arcs along them.
#pragma once

#include "StyleConversion/interfaces/HostNames.h"

#include <vector>

namespace block {

/// A vertex of a polyline; the bulge belongs to the segment behind it: the tangent of a quarter of the arc's
/// included angle, positive when it runs counter-clockwise, 0 for a straight segment.
struct CurveVertex {
    OxGePoint2d point;
    double bulge = 0.0;
};

/// Vertices on a curve from its start to its end, the arcs and segments between which are off it by at most
/// `tolerance`, in drawing units. None when the curve is not defined.
std::vector<CurveVertex> FollowCurve(OxGeNurbCurve2d& curve, double tolerance);

} // namespace block
