// Angles and directions in the plane, in radians.
#pragma once

#include "StyleConversion/interfaces/HostNames.h"

#include <cmath>

namespace block {

inline constexpr double kHalfPi = 1.5707963267948966;
inline constexpr double kPi = 3.141592653589793;
inline constexpr double kTwoPi = 6.283185307179586;

inline double Distance(OxGePoint2d from, OxGePoint2d to) {
    return from.distanceTo(to);
}

/// The direction from one point to another, in (-pi/2, 3 pi/2]; for a vertical one, and for equal points,
/// exactly pi/2 upward and -pi/2 otherwise.
inline double CalcLineAngle(const OxGePoint2d& from, const OxGePoint2d& to) {
    if (from.x == to.x) {
        return to.y > from.y ? kHalfPi : -kHalfPi;
    }
    const double angle = std::atan((to.y - from.y) / (to.x - from.x));
    return from.x > to.x ? angle + kPi : angle;
}

/// end - start, one turn more where that is negative.
inline double Sweep(double start, double end) {
    const double sweep = end - start;
    return sweep < 0.0 ? sweep + kTwoPi : sweep;
}

inline OxGePoint2d PointOnCircle(const OxGePoint2d& center, double radius, double angle) {
    return host::Point(center.x + radius * std::cos(angle), center.y + radius * std::sin(angle));
}

/// The direction of travel along a line, for steps from point to point.
class Direction {
public:
    explicit Direction(double angle) : cosine_(std::cos(angle)), sine_(std::sin(angle)) {}

    OxGePoint2d From(const OxGePoint2d& point, double length) const {
        return host::Point(point.x + length * cosine_, point.y + length * sine_);
    }

private:
    double cosine_;
    double sine_;
};

/// The circle that an arc runs on, and the sense in which it does.
struct ArcTravel {
    OxGePoint2d center;
    double radius;
    bool clockwise;

    /// The point one angle step further. Where the arc stands is taken from the point's coordinates each
    /// time, not carried along.
    OxGePoint2d From(const OxGePoint2d& point, double step) const {
        const double angle = CalcLineAngle(center, point);
        return PointOnCircle(center, radius, clockwise ? angle - step : angle + step);
    }
};

/// The plane point below a point of space.
inline OxGePoint2d InPlane(const OxGePoint3d& point) {
    return host::Point(point.x, point.y);
}

} // namespace block
