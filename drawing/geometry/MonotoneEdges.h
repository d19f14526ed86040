// The boundary of a hatch as pieces that rise or fall steadily across the lines of one family.
#pragma once

#include "drawing/geometry/BezierChain.h"
#include "drawing/geometry/HatchFrame.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace geometry {

/// An arc of an ellipse: center + major cos t + minor sin t. Circles too.
struct ConicArc {
    Point center;
    Vector major;
    Vector minor;
};

inline Point ConicPoint(const ConicArc& conic, double angle) {
    return conic.center + std::cos(angle) * conic.major + std::sin(angle) * conic.minor;
}

/// A conic's level as center + amplitude cos(t - phase).
struct LevelWave {
    double center = 0.0;
    double amplitude = 0.0;
    double phase = 0.0;
};

LevelWave MakeLevelWave(const ConicArc& conic, const HatchFrame& frame);

/// The straight parts, conics and Bernstein pieces that a monotone edge can be part of.
enum class EdgeShape : unsigned char { kStraight, kConic, kBezier };

/// A piece of the boundary along which the level only rises or only falls. Edges that meet have the very same
/// level (to the bit) at the common point; so a line that counts the points of its own level as below itself
/// is crossed an even number of times by every loop.
struct MonotoneEdge {
    Point start;
    Point end;
    double startLevel = 0.0; ///< snapped
    double endLevel = 0.0;
    EdgeShape shape = EdgeShape::kStraight;
    std::size_t index = 0;   ///< into conics, or the first control point of a Bernstein piece
    std::size_t order = 0;   ///< of a Bernstein piece: its number of control points
    double startAngle = 0.0; ///< of a conic: between these, ascending
    double endAngle = 0.0;
};

struct MonotoneBoundary {
    std::vector<MonotoneEdge> edges;
    std::vector<ConicArc> conics;
    std::vector<Point> points;   ///< Bernstein pieces of all splines, back to back
    std::vector<double> weights; ///< as many as points; 1 where the spline is not rational
};

/// Cuts the loops into monotone edges. Horizontal pieces (both ends on one level) are among them.
MonotoneBoundary MakeMonotoneBoundary(const std::vector<HatchLoop>& loops, const HatchFrame& frame);

/// The point where an edge of the boundary reaches a level between those of its ends (or that of an end).
Point CrossingAt(const MonotoneBoundary& boundary, const MonotoneEdge& edge, const HatchFrame& frame,
                 double level);

} // namespace geometry
