// How far a strict symbol of a pattern is from what the definition says, in numbers.
#pragma once

#include "StyleConversion/pattern/PatternLine.h"
#include "TylModel/TylModel.h"
#include "conversions/checking/CutNumber.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace conversions {

/// How far from where a measure is taken, in tiles along either side: what a tile misses adds up.
inline constexpr double kMeasuredTiles = 10.0;

/// How far the lines of one family are from their places, kMeasuredTiles from the origin.
struct FamilyMeasure {
    std::size_t family = 0;
    double across = 0.0;          // as a share of the spacing
    double along = 0.0;           // as a share of the shortest dash or gap; 0 for continuous lines
    std::optional<CutNumber> cut; // the number that has the largest part in it, if it is not the tile itself

    double Share() const { return across > along ? across : along; }
};

struct PatternMeasure {
    std::vector<std::size_t> lost; // families that should be drawn and are not, in the order of the file
    FamilyMeasure worst;           // of those that are drawn
};

/// Compares the symbol, as it is written, with the families that it was built from, in the order of the file.
/// Families whose numbers are too large to say where they are are not measured.
PatternMeasure MeasurePattern(const std::vector<pattern::PatternLine>& families,
                              TylModel::SymbolDefinition& symbol);

} // namespace conversions
