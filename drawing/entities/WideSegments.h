// Polylines with a width: the areas that their segments cover.
#pragma once

#include "OxDb/Export.h"
#include "drawing/geometry/BulgeVertex.h"

#include <vector>

namespace drawing {

/// How wide the segment behind a vertex is at its start and its end, in drawing units.
struct SegmentWidth {
    double start = 0.0;
    double end = 0.0;

    bool operator==(const SegmentWidth& other) const { return start == other.start && end == other.end; }
    bool operator!=(const SegmentWidth& other) const { return !(*this == other); }
};

/// A segment of a polyline: the closed outline of the area that it covers, or, of one without a width,
/// nothing.
using SegmentOutline = std::vector<geometry::BulgeVertex>;

/// One for each segment. Neighbours of one width meet in a mitre, unless they turn back too sharply for one.
/// Arcs of one width have arcs as edges; where the width changes along an arc, its edges are spirals, which
/// are followed by arcs to a millionth of that change.
OXDB_API std::vector<SegmentOutline> OutlinesOf(const std::vector<geometry::BulgeVertex>& vertices,
                                                const std::vector<SegmentWidth>& widths, bool closed);

} // namespace drawing
