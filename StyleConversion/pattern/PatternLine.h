// One family of parallel lines of a hatch pattern, with the tile that repeats it.
#pragma once

#include "StyleConversion/encoding/Fidelity.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace pattern {

inline constexpr double kRadiansPerDegree = 0.017453292519943295;

/// What a line replaces a spacing of 0 by, and the dash cycle of a family without dashes, in drawing units.
inline constexpr double kDefaultLength = 10.0;

/// Lengths are in drawing units.
struct PatternLine {
    double angle = 0.0;                // degrees, counter-clockwise from the x axis
    double originX = 0.0;              // a point on one of the lines, where a dash cycle begins
    double originY = 0.0;              //
    double offset = 0.0;               // shift along the lines from one to the next, in [0, dashTotal)
    double spacing = kDefaultLength;   // distance from one line to the next, to the left of the lines
    double repeatX = kDefaultLength;   // width of the tile
    double repeatY = kDefaultLength;   // height of the tile; either may be negative
    std::vector<double> dashes;        // drawn > 0, dot 0, gap < 0; no two neighbours of one kind
    std::int32_t rowCount = 1;         // lines that one tile stacks; -1 when no tile repeats the family
    double dashTotal = kDefaultLength; // length of one dash cycle
    bool rotatedTile = false;          // the tile stands upright while its lines run at the angle
};

/// Reads a family from the text of its line: angle, x and y of the origin, shift, spacing and any number of
/// dashes, separated by commas. What is missing or no number is 0; a spacing of 0 becomes 10. Neighbouring
/// dashes of one kind are merged, and a family that draws nothing but dots, or has no dashes, becomes a
/// continuous line. The tile is found as well.
PatternLine ParsePatternLine(std::string_view line);

/// The family of these numbers; its tile only where that of a strict symbol is asked for.
struct FamilyNumbers;
PatternLine MakePatternLine(FamilyNumbers&& numbers,
                            encoding::Fidelity fidelity = encoding::Fidelity::kStrict);

} // namespace pattern
