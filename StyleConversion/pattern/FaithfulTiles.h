// The tiles that draw the families of a pattern as their definition says.
#pragma once

#include "StyleConversion/pattern/TileSearch.h"

#include <cstddef>
#include <vector>

namespace pattern {

/// A family in a tile: which one of the pattern's, and what the tile's sides are to it.
struct TiledFamily {
    std::size_t family = 0;
    FamilyFit fit;
};

/// Families that one rectangle repeats: either all with dashes or all continuous. Those of the latter kind
/// run along the rectangle, which is as high as their spacing.
struct FaithfulTile {
    Rectangle rectangle;
    bool isContinuous = false;
    std::vector<TiledFamily> families;
};

struct FaithfulTiles {
    std::vector<FaithfulTile> tiles;
    std::vector<std::size_t> unplaced; // families whose numbers are too large to say where they are
};

/// Every family that draws something is in one tile, or among the unplaced ones. Families share the smallest
/// upright rectangle that repeats all of them; where there is none, as many as can share one at any angle;
/// what is left gets one that misses its lattice the least.
FaithfulTiles FindFaithfulTiles(const std::vector<PatternLine>& families);

} // namespace pattern
