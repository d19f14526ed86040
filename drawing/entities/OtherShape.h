// What a drawing shows of entities whose class conversions know nothing of.
#pragma once

#include "OxDb/OxGePoint.h"

#include <string>
#include <variant>
#include <vector>

namespace drawing {

/// A filled area with straight edges, in the order of its outline.
struct FilledCorners {
    std::vector<OxGePoint3d> corners;
};

/// A block that draws the entity, from its own 0, 0, moved to a position.
struct OwnBlock {
    std::wstring name;
    OxGePoint3d position = {};
};

/// Straight lines from point to point.
struct OpenPath {
    std::vector<OxGePoint3d> points;
};

/// Nothing where it is not known.
using OtherShape = std::variant<std::monostate, FilledCorners, OwnBlock, OpenPath>;

} // namespace drawing
