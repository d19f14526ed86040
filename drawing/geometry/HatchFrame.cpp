// The axes of a hatch family.
#include "drawing/geometry/HatchFrame.h"

#include <cmath>
#include <limits>

namespace geometry {

Status MakeHatchFrame(const HatchFamily& family, HatchFrame& frame) {
    Vector direction = {std::cos(family.angle), std::sin(family.angle)};
    // Quarter turns are exact although pi is not: lines along an axis keep their coordinate to the digit.
    constexpr double kAlongAxis = 1e-15;
    if (std::fabs(direction.x) < kAlongAxis) {
        direction = {0.0, std::copysign(1.0, direction.y)};
    } else if (std::fabs(direction.y) < kAlongAxis) {
        direction = {std::copysign(1.0, direction.x), 0.0};
    }
    const Vector normal = TurnedLeft(direction);
    const double across = Dot(family.offset, normal);
    constexpr double kParallel = 1e-12;
    if (!(std::fabs(across) > kParallel * Length(family.offset))) {
        return Status::kParallelOffset;
    }
    const Vector up = across > 0.0 ? family.offset : Vector{-family.offset.x, -family.offset.y};
    frame = {direction, normal, family.base, up, std::fabs(across)};
    return Status::kOk;
}

double RawLevel(const HatchFrame& frame, Point point) {
    return Dot(frame.normal, point - frame.base) / frame.spacing;
}

double SnappedLevel(double rawLevel) {
    constexpr double kNear = 1e-9;
    const double whole = std::round(rawLevel);
    const double rounding = 8.0 * std::numeric_limits<double>::epsilon() * std::fabs(rawLevel);
    return std::fabs(rawLevel - whole) <= kNear + rounding ? whole : rawLevel;
}

} // namespace geometry
