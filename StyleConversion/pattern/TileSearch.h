// The search for a rectangle whose sides lie in the lattices of families.
#pragma once

#include "StyleConversion/pattern/FamilyLattice.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace pattern {

/// A rectangle at an angle in degrees, counter-clockwise, with a corner at the origin.
struct Rectangle {
    double angle = 0.0;
    double width = 0.0;
    double height = 0.0;
};

/// How far a tile may miss the lattices, in shares of each family's shortest dash, and how many dash cycles
/// of a family and dashes in all it may hold.
struct TileBounds {
    double share = 0.0;
    double mostCells = 0.0;
    double mostDashes = 0.0;
};

/// Which lattice points of a family the sides of a rectangle are, and how far they miss these.
struct FamilyFit {
    LatticePoint right;
    LatticePoint up;
    double share = 0.0;  // of the worse side, as FamilyLattice::ShareOf says
    double length = 0.0; // the same miss as a length

    /// How many dash cycles the rectangle holds, if it did not miss.
    std::int64_t Cells() const;
};

FamilyFit FitOf(const PatternLine& line, const Rectangle& rectangle);

/// The smallest rectangle at that angle whose sides lie in the lattices of all these families, none of which
/// is continuous; none where it would break the bounds.
std::optional<Rectangle> FindRectangle(const std::vector<const PatternLine*>& families, double angle,
                                       const TileBounds& bounds);

/// The rectangle of one family that holds the fewest dash cycles, at any angle that a short vector of its
/// lattice has: of the first of the bounds, each wider than those before, that any rectangle keeps.
std::optional<Rectangle> FindRectangleAtAnyAngle(const PatternLine& family,
                                                 const std::vector<TileBounds>& bounds);

/// A rectangle along the lines of a family, one dash cycle wide and at most `mostRows` lines high, whose last
/// line is the nearest to being in phase with the first.
Rectangle NearestStack(const PatternLine& family, double mostRows);

/// An angle in degrees, from 0 to below 180, at which a rectangle lies as at that one.
double AngleOfRectangle(double degrees);

} // namespace pattern
