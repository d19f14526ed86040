// Full turns that a file has rounded.
#pragma once

#include <cmath>
#include <numbers>

namespace geometry {

/// `end`, or the end of a full turn from `start` where the two are a full turn apart but for rounding: up to
/// a millionth of it. Ends that curves take for those of a full turn anyway stay as they are.
inline double FullTurn(double start, double end) {
    constexpr double kTurn = 2.0 * std::numbers::pi;
    constexpr double kFull = 1e-9;
    constexpr double kRounding = 1e-6 * kTurn;
    const double rest = std::fabs(std::fabs(end - start) - kTurn);
    return rest > kFull && rest <= kRounding ? start + (end < start ? -kTurn : kTurn) : end;
}

} // namespace geometry
