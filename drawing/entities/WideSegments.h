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

/// A segment of a polyline: the corners of the area that it covers, or, of one without a width, nothing.
using SegmentOutline = std::vector<OxGePoint2d>;

/// One for each segment. Neighbours of one width meet in a mitre, unless they turn back too sharply for one;
/// arcs are followed by chords that leave them by 0.03 % of the radius.
OXDB_API std::vector<SegmentOutline> OutlinesOf(const std::vector<geometry::BulgeVertex>& vertices,
                                                const std::vector<SegmentWidth>& widths, bool closed);

} // namespace drawing
