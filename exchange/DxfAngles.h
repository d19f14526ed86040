// Angles as DXF files have them, and as the drawing database has them.
#pragma once

#include <cmath>
#include <numbers>

namespace exchange {

constexpr double Radians(double degrees) {
    return degrees * (std::numbers::pi / 180.0);
}

/// `end`, or the end of a full turn from `start` where the two are a full turn apart but for rounding: up to
/// a millionth of it.
inline double FullTurn(double start, double end) {
    constexpr double kTurn = 2.0 * std::numbers::pi;
    constexpr double kRounding = 1e-6;
    return std::fabs(std::fabs(end - start) - kTurn) <= kRounding * kTurn
               ? start + (end < start ? -kTurn : kTurn)
               : end;
}

/// The parameter of an ellipse at which its point lies in the direction `angle` from the centre, both from
/// the major axis and in the same turn.
inline double EllipseParameter(double angle, double ratio) {
    constexpr double kTurn = 2.0 * std::numbers::pi;
    const double parameter = std::atan2(std::sin(angle), std::fabs(ratio) * std::cos(angle));
    return parameter + kTurn * std::round((angle - parameter) / kTurn);
}

} // namespace exchange
