// The smallest upright rectangle that, set side by side, repeats all groups of strokes of an area.
#pragma once

#include "styles/AreaParts.h"

#include <optional>
#include <vector>

namespace styles {

/// What asks for a side of the cell: on an axis at an angle to the side, of whose length it has `share`,
/// something stands every `step`.
struct Repetition {
    double share = 1.0; // above 0, at most 1
    double step = 0.0;
};

struct CellSide {
    double length = 0.0; // 0 where any length does
    double error = 0.0;  // how far the worst of the repetitions is from its place one cell further on
};

/// The shortest length in which all repetitions come to whole steps, to within `tolerance`; where no length
/// up to `longest` is that good, the best one. None where a single step is longer.
std::optional<CellSide> CommonSide(const std::vector<Repetition>& repetitions, double longest,
                                   double tolerance);

struct UprightCell {
    CellSide across;
    CellSide upright;
};

/// All lengths are in the units of the tilings.
std::optional<UprightCell> SmallestUprightCell(const std::vector<Tiling>& tilings, double longest,
                                               double tolerance);

} // namespace styles
