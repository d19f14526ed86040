// Angles as DXF files have them, and as the drawing database has them.
#pragma once

#include "drawing/geometry/FullTurn.h"

#include <cmath>
#include <numbers>

namespace exchange {

constexpr double Radians(double degrees) {
    return degrees * (std::numbers::pi / 180.0);
}

/// The parameter of an ellipse at which its point lies in the direction `angle` from the centre, both from
/// the major axis and in the same turn.
inline double EllipseParameter(double angle, double ratio) {
    constexpr double kTurn = 2.0 * std::numbers::pi;
    const double parameter = std::atan2(std::sin(angle), std::fabs(ratio) * std::cos(angle));
    return parameter + kTurn * std::round((angle - parameter) / kTurn);
}

/// Where a curve ends that runs counter-clockwise from `start` to the direction of `end`, radians: `end` but
/// for whole turns, at most one turn behind the start, and a full turn where it is one but for rounding.
inline double EndBehind(double start, double end) {
    constexpr double kTurn = 2.0 * std::numbers::pi;
    constexpr double kRounding = 1e-9;
    if (end >= start) {
        end = geometry::FullTurn(start, end);
    }
    const double turns = (end - start) / kTurn;
    if (turns < 0.0) {
        end -= kTurn * std::floor(turns);
    } else if (turns > 1.0 + kRounding) {
        end -= kTurn * (std::ceil(turns) - 1.0);
    }
    return geometry::FullTurn(start, end);
}

} // namespace exchange
