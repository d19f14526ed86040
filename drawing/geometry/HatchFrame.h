// The axes of one family of hatch lines, in which its lines are the whole numbers.
#pragma once

#include "drawing/geometry/Hatch.h"

namespace geometry {

/// A point's level is its distance from the base line along the family's normal, in spacings: the lines are
/// the points of whole level. Levels grow along the normal whatever the sense of the offset.
struct HatchFrame {
    Vector direction;     ///< unit vector along the lines
    Vector normal;        ///< direction turned by +90 degrees
    Point base;           ///< a point of line 0, where its dashes start
    Vector offset;        ///< from a line to the next one up, carrying the start of its dashes along
    double spacing = 1.0; ///< drawing units from line to line, positive
};

/// kParallelOffset when the offset does not lead away from the line; the family's numbers are finite.
Status MakeHatchFrame(const HatchFamily& family, HatchFrame& frame);

/// The level of a point, unrounded.
double RawLevel(const HatchFrame& frame, Point point);

/// A level that rounding alone keeps from being whole is made whole: vertices that lie on a line then do so
/// for every edge that meets there.
double SnappedLevel(double rawLevel);

inline Point LineOrigin(const HatchFrame& frame, double line) {
    return frame.base + line * frame.offset;
}

} // namespace geometry
