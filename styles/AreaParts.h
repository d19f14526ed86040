// An area symbol as what is repeated over the plane: lines from end to end, strokes and dots.
#pragma once

#include "styles/Ink.h"
#include "styles/Loss.h"

#include <vector>

namespace styles {

struct Stroke {
    preview::Point from;
    preview::Point to;

    friend bool operator==(const Stroke&, const Stroke&) = default;
};

/// Upright steps of one angle. Lengths are in the symbol's units.
struct Tiling {
    double angle = 0.0; // degrees, counter-clockwise, about the origin
    double stepX = 0.0;
    double stepY = 0.0;
    std::vector<double> rows;    // y of lines along x that have no end
    std::vector<double> columns; // x of lines along y that have no end
    std::vector<Stroke> strokes;
    std::vector<preview::Point> dots;
};

/// Tilings that are drawn in one ink, one after the other.
struct AreaLayer {
    Ink ink;
    std::vector<Tiling> tilings;
};

struct AreaParts {
    std::vector<AreaLayer> layers;
    Losses losses;
};

AreaParts AreaPartsOf(const preview::ResolvedSymbol& symbol, double scale);

/// How many strokes and dots there are on an area of 1 square unit.
double DensityOf(const std::vector<Tiling>& tilings);

} // namespace styles
