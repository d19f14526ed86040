// Where a family of lines is the same again.
#pragma once

#include "StyleConversion/pattern/PatternLine.h"

#include <cstdint>

namespace pattern {

struct Vector {
    double x = 0.0;
    double y = 0.0;
};

/// The unit vector at an angle in degrees; exact along the axes.
Vector DirectionAt(double degrees);

/// So many dash cycles along the lines and so many lines up.
struct LatticePoint {
    std::int64_t cycles = 0;
    std::int64_t lines = 0;
};

/// A lattice point near a place, and how far the place lies from it, along the lines and across them.
struct LatticeFit {
    LatticePoint point;
    double along = 0.0;
    double across = 0.0;
};

/// The vectors by which a family may be shifted onto itself, in a frame that is turned against the drawing's.
/// For a family of dashes these are the sums of whole dash cycles and of steps from line to line. A
/// continuous family also has every vector along its lines; its points have no cycles.
class FamilyLattice {
public:
    /// `frame` is the angle of the frame in degrees.
    explicit FamilyLattice(const PatternLine& line, double frame = 0.0);

    bool IsContinuous() const { return isContinuous_; }
    /// Along the lines.
    const Vector& Direction() const { return direction_; }
    double Cycle() const { return cycle_; }
    /// The shift from one line to the next along the lines, and their distance, which may be negative.
    double Shift() const { return shift_; }
    double Spacing() const { return spacing_; }
    /// The area that belongs to one dash cycle.
    double CellArea() const;
    /// The shortest dash or gap; where dashes are dots, the shortest of the others. Of a continuous family
    /// the spacing.
    double Shortest() const { return shortest_; }

    Vector At(const LatticePoint& point) const;
    LatticeFit NearestTo(const Vector& place) const;

    /// How large the distance of a fit is: along the lines as a share of the shortest dash, across them of
    /// the shortest dash or the spacing, whichever is less. The larger of both.
    double ShareOf(const LatticeFit& fit) const;
    /// How far, across the lines and along them, a place may be off for a share.
    double AcrossFor(double share) const;
    double AlongFor(double share) const { return share * shortest_; }

private:
    bool isContinuous_;
    Vector direction_;
    double cycle_;
    double shift_;
    double spacing_;
    double shortest_;
};

/// Whether the numbers of a family say where its lines are: all finite, with lines apart from one another.
bool IsPlaced(const PatternLine& line);
/// Whether a family draws lines without gaps, and whether it draws anything.
bool IsContinuous(const PatternLine& line);
bool DrawsNothing(const PatternLine& line);

} // namespace pattern
