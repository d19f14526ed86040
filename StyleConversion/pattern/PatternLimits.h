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

} // namespace pattern
