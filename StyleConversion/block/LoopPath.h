// Loops of vertices and bulges as paths.
#pragma once

#include "OxDb/OxGePoint.h"

#include <cmath>

namespace block {

/// The arc of a segment with a bulge: the tangent of a quarter of its included angle, negative for clockwise.
struct BulgeArc {
    double radius;
    bool large;
    bool sweep;
};

/// `bulge` is not 0.
inline BulgeArc ArcOfBulge(double bulge, double chord) {
    return {std::fabs((bulge * bulge + 1.0) * chord / (4.0 * bulge)), std::fabs(bulge) > 1.0, bulge < 0.0};
}

/// 0 where the segment from that vertex is straight, or no bulge is given for it.
inline double BulgeAt(const OxGeDoubleArray& bulges, int index) {
    return index < bulges.length() ? bulges[index] : 0.0;
}

} // namespace block
