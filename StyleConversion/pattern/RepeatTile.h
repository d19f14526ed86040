// The searches for a rectangle that repeats a family of dashed lines.
#pragma once

#include "StyleConversion/pattern/PatternLine.h"

namespace pattern {

/// Looks for an upright rectangle, one dash long in area, whose corners lie on the lattice that the
/// beginnings of the family's dash cycles make. On success the tile is set, with sides that may be negative,
/// and rotatedTile; otherwise the line stays as it was and the result is false.
bool FindRotatedTile(PatternLine& line);

/// Looks for a number of lines after which the dash cycle is back in phase, exactly or nearly. On success
/// the tile is set, in the family's own frame, and rowCount; otherwise the line stays as it was and the
/// result is false.
bool FindStackedTile(PatternLine& line);

/// How well the tile of a family closes: by how much, in drawing units, the dash cycle behind the last
/// stacked line is out of phase; 0 for tiles of other kinds.
double PhaseError(const PatternLine& line);

} // namespace pattern
