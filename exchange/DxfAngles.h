// Angles as DXF files have them, and as the drawing database has them.
#pragma once

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

} // namespace exchange
