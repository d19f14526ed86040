// Hatch lines: families of parallel dashed lines, cut to an area.
#pragma once

#include "OxDb/OxGeNurbCurve2d.h"
#include "drawing/geometry/BulgeVertex.h"
#include "drawing/geometry/Status.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace geometry {

/// An edge is one of the interface's curves, of which the ends and the sense count as they are: an arc runs
/// from its start angle up to its end angle, by end - start plus 2 pi when negative; a full turn when the two
/// are 2 pi apart (within 1e-9). A spline cannot be copied and is shared; it is not null, and leaves a gap
/// when it is not defined.
using HatchEdge =
    std::variant<OxGeLineSeg2d, OxGeCircArc2d, OxGeEllipArc2d, std::shared_ptr<const OxGeNurbCurve2d>>;

/// The closed line over the vertices; the last bulge belongs to the segment back to the first.
struct PolylineLoop {
    std::vector<BulgeVertex> vertices;
    bool hasBulges = false; ///< false: a hatch hands out no bulges at all
};

/// Edges in order, or a polyline. Where an edge does not end at the start of the next (after the last: the
/// first), a straight line joins them, so that a loop always closes. Edges may run backward.
struct HatchLoop {
    std::vector<HatchEdge> edges;
    std::optional<PolylineLoop> polyline = std::nullopt; ///< set: no edge counts
};

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

/// A piece of a hatch line, from one end to the other.
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
