// The limits of pattern files and of the search for repeat tiles.
#pragma once

#include <cstddef>

namespace pattern {

/// Characters in the longest line that is read. So many of a longer one count as a line, and the reading ends
/// there. Readers of the format have always used a buffer of 128 characters that also holds the terminator.
inline constexpr std::size_t kLongestLine = 127;

inline constexpr double kMillimetresPerInch = 25.4;

/// How many multiples are tried, along each axis, for a rectangle whose corners lie on the family's lattice.
inline constexpr int kLatticeSearch = 511;

/// How far, in dash cycles or lines, a multiple may lie from a whole number to count as on the lattice.
inline constexpr double kLatticeTolerance = 0.0001;

/// How far the rectangle's area may differ from a lattice cell's, relative to it.
inline constexpr double kAreaTolerance = 0.0001;

/// The most lines that a tile stacks.
inline constexpr int kStackSearch = 64;

/// In drawing units: a phase this near to a whole dash cycle ends the search for a stack.
inline constexpr double kPhaseTolerance = 0.0001;

/// How near the phase of a stack must come to a whole dash cycle, as a share of the shift between two lines.
inline constexpr double kLargestPhaseError = 0.25;

/// In degrees and drawing units: families whose angle and tile differ by less are drawn by one symbol.
inline constexpr double kSameTileTolerance = 0.0001;

// Tiles of faithful symbols.

/// A dash or gap that is a smaller share of its cycle than this is a dot, written as people write dots.
inline constexpr double kDotShare = 0.0001;

/// Families with numbers of this size, or below its reciprocal, are beyond what a picture can hold.
inline constexpr double kLargestNumber = 1e15;

/// How far one side of a tile may miss a family's lattice, as a share of the family's shortest dash: as much
/// as numbers of a file miss what they were rounded from; so little that after 50 tiles it is still below a
/// hundredth; so little that it is after ten; a hundredth; and so much as families of one picture that were
/// rounded one by one miss each other's.
inline constexpr double kExactMiss = 0.00001;
inline constexpr double kUnseenMiss = 0.0001;
inline constexpr double kSlightMiss = 0.001;
inline constexpr double kSmallMiss = 0.01;
inline constexpr double kRoundedMiss = 0.02;

/// The most dash cycles of one family in a tile that is exact; in one that misses unseen or slightly where a
/// smaller one misses by more; and in one that all families share though it misses by more: larger ones come
/// about by chance.
inline constexpr double kMostExactCells = 256;
inline constexpr double kMostSlightCells = 64;
inline constexpr double kMostSharedCells = 64;

/// The most dash cycles of one family in any tile, and the most dashes in a tile beside those that the
/// families have in one cycle each.
inline constexpr double kMostCells = 4096;
inline constexpr double kMostDashes = 16384;

/// A family goes into the tile of others where that takes no more dashes than these and those of a tile of
/// its own: so many are as long to write as what a tile needs beside them.
inline constexpr double kDashesOfTile = 16;

/// Groups of families for which all others are tried; what is left has a tile for each.
inline constexpr int kMostGroups = 64;

/// How many vectors of one lattice are tried as the side of a tile.
inline constexpr int kMostSides = 2048;

} // namespace pattern
