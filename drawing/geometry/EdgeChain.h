// Edges of a hatch loop in the order in which they bound it.
#pragma once

#include "drawing/geometry/Hatch.h"

#include <vector>

namespace geometry {

/// Where an edge starts and ends.
struct EdgeEnds {
    Point start;
    Point end;
};
OXDB_API EdgeEnds EndsOf(const HatchEdge& edge);

/// The same curve run from its end to its start.
OXDB_API HatchEdge Reversed(const HatchEdge& edge);

/// Puts edges in order, each beginning where the one before it ends, and turns round those that run the other
/// way. The first edge stays first and runs as it does; where none goes on, the next one left begins anew.
/// Edges that are in order stay as they are. Ends nearer to each other than a millionth of the loop's size
/// meet.
OXDB_API void ChainEdges(std::vector<HatchEdge>& edges);

} // namespace geometry
