// Hatch lines: families of parallel dashed lines, cut to an area.
#pragma once

#include "drawing/geometry/NurbsCurve.h"

#include <variant>
#include <vector>

namespace geometry {

struct LineEdge {
    Point start;
    Point end;
};

/// An arc from start to end; `bulge` is the tangent of a quarter of its included angle, positive when it runs
/// counter-clockwise, 0 for a straight line.
struct BulgeEdge {
    Point start;
    Point end;
    double bulge = 0.0;
};

/// An arc of a circle. Angles in radians, measured from +x in the direction of travel: the point at angle t
/// is center + radius (cos t, sin t), or center + radius (cos t, -sin t) when clockwise. It runs from
/// startAngle up to endAngle, by end - start plus 2 pi when negative; a full turn when the two are 2 pi apart
/// (within 1e-9).
struct ArcEdge {
    Point center;
    double radius = 0.0;
    double startAngle = 0.0;
    double endAngle = 0.0;
    bool clockwise = false;
};

/// An arc of an ellipse: as ArcEdge, the point at t being center + majorAxis cos t + minorAxis sin t, with
/// minorAxis = radiusRatio times majorAxis turned by +90 degrees (by -90 when clockwise).
struct EllipseEdge {
    Point center;
    Vector majorAxis;
    double radiusRatio = 1.0;
    double startAngle = 0.0;
    double endAngle = 0.0;
    bool clockwise = false;
};

struct SplineEdge {
    NurbsCurve curve;
};

using HatchEdge = std::variant<LineEdge, BulgeEdge, ArcEdge, EllipseEdge, SplineEdge>;

/// Edges in order. Where an edge does not end at the start of the next (after the last: the first), a
/// straight line joins them, so that a loop always closes. Edges may run backward.
struct HatchLoop {
    std::vector<HatchEdge> edges;
};

/// A vertex of a polyline loop; the bulge belongs to the segment that leaves it.
struct BulgeVertex {
    Point point;
    double bulge = 0.0;
};

/// The closed loop over the vertices; the last bulge belongs to the segment back to the first.
HatchLoop LoopFromVertices(const std::vector<BulgeVertex>& vertices);

/// One family of parallel lines: line k goes through base + k * offset at `angle` (radians, counter-clockwise
/// from +x), k any whole number; offset is in drawing axes. Dashes run along each line from that very point
/// in both directions without end: positive a drawn length, negative a gap, zero a dot. No dashes: a solid
/// line.
struct HatchFamily {
    double angle = 0.0;
    Point base;
    Vector offset;
    std::vector<double> dashes;
};

struct HatchLine {
    Point start;
    Point end;
};

/// The lines of all families inside the loops by the even-odd rule. Order: families as given; in a family
/// ascending by the signed distance along its normal (-sin angle, cos angle); on a line ascending along
/// (cos angle, sin angle), which is also the direction of each piece. A dot gives a piece of zero length.
///
/// A boundary point on a family line counts as just below it: an edge that lies on a line is drawn
/// when the area is on the normal's side of it, and not when the area is on the other. A line is not cut
/// where two areas touch, nor drawn where it only touches a corner. Dots on the boundary are drawn.
///
/// Arcs and ellipses are cut exactly, splines by root finding. A coordinate that would only be rounding noise
/// beside the hatch's other coordinates is 0.
///
/// Refused, with `lines` empty: numbers that are not finite or too large (kNotFinite, kOutOfRange), an offset
/// that is zero or parallel to its lines (kParallelOffset), more than `most` lines, also where that comes
/// from a tiny spacing or pattern, or from dots without gaps (kTooManyLines). The latter are found without
/// making the lines.
Status EvaluateHatch(const std::vector<HatchLoop>& loops, const std::vector<HatchFamily>& families,
                     std::size_t most, std::vector<HatchLine>& lines);

} // namespace geometry
