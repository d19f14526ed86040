// A line symbol as what map programs draw along a line: dashes on it, dots, and marks that keep their shape.
#pragma once

#include "styles/Ink.h"
#include "styles/Loss.h"

#include <optional>
#include <variant>
#include <vector>

namespace styles {

/// Lengths are in the symbol's units, multiplied by its scale.
struct Dashes {
    Ink ink;
    /// A dash, a gap, a dash, ... from the start of a dash on; none where the line has no gap.
    std::vector<double> lengths;
    double phase = 0.0; // the place in them at which the line begins
};

/// Places along the line, from its start: offset, offset + interval, ...
struct Places {
    double interval = 0.0;
    double offset = 0.0; // less than the interval

    friend bool operator==(const Places&, const Places&) = default;
};

struct Dots {
    Ink ink;
    Places places;
};

/// A part that keeps its shape.
struct Mark {
    const preview::Part* part = nullptr; // of the symbol
    preview::Point anchor;               // the point of the part, in its own units, that stands on the line
    Places places;
    bool turnsWithLine = true;
    double angle = 0.0; // degrees, counter-clockwise, about the anchor
};

using LinePart = std::variant<Dashes, Dots, Mark>;

struct LineParts {
    std::vector<LinePart> parts; // in drawing order
    Losses losses;
};

/// The symbol must outlive what is returned.
LineParts LinePartsOf(const preview::ResolvedSymbol& symbol, double scale);

} // namespace styles
