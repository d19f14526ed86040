// Maps of the plane that keep straight lines straight: moves, turns, scales, mirrors.
#pragma once

#include "OxDb/OxGePoint.h"

#include <cmath>

namespace drawing {

/// (x, y) goes to (a x + b y + dx, c x + d y + dy). Heights above the plane stay.
struct PlaneMap {
    double a = 1.0;
    double b = 0.0;
    double c = 0.0;
    double d = 1.0;
    double dx = 0.0;
    double dy = 0.0;

    static PlaneMap Move(double x, double y) { return {1.0, 0.0, 0.0, 1.0, x, y}; }
    static PlaneMap Scale(double x, double y) { return {x, 0.0, 0.0, y, 0.0, 0.0}; }
    /// Counter-clockwise, radians.
    static PlaneMap Turn(double angle) {
        const double cosine = std::cos(angle);
        const double sine = std::sin(angle);
        return {cosine, -sine, sine, cosine, 0.0, 0.0};
    }

    /// This map after the other.
    PlaneMap After(const PlaneMap& first) const {
        return {a * first.a + b * first.c,        a * first.b + b * first.d,
                c * first.a + d * first.c,        c * first.b + d * first.d,
                a * first.dx + b * first.dy + dx, c * first.dx + d * first.dy + dy};
    }

    OxGeVector2d OfVector(const OxGeVector2d& v) const { return {a * v.x + b * v.y, c * v.x + d * v.y}; }
    OxGePoint2d Of(const OxGePoint2d& p) const { return {a * p.x + b * p.y + dx, c * p.x + d * p.y + dy}; }
    OxGePoint3d Of(const OxGePoint3d& p) const {
        return {a * p.x + b * p.y + dx, c * p.x + d * p.y + dy, p.z};
    }
    OxGeVector3d OfVector(const OxGeVector3d& v) const { return {a * v.x + b * v.y, c * v.x + d * v.y, v.z}; }

    bool IsMirrored() const { return a * d - b * c < 0.0; }
    /// How long a vector of length 1 in that direction becomes.
    double Stretch(double angle) const {
        const OxGeVector2d v = OfVector(OxGeVector2d{std::cos(angle), std::sin(angle)});
        return std::hypot(v.x, v.y);
    }
    /// The direction that a direction becomes.
    double Direction(double angle) const {
        const OxGeVector2d v = OfVector(OxGeVector2d{std::cos(angle), std::sin(angle)});
        return std::atan2(v.y, v.x);
    }
    /// Whether circles stay circles: nothing is stretched in one direction alone.
    bool KeepsCircles() const {
        constexpr double kRounding = 1e-9;
        const double size = std::hypot(a, c) + std::hypot(b, d);
        const double sign = IsMirrored() ? -1.0 : 1.0;
        return std::hypot(a - sign * d, b + sign * c) <= kRounding * size;
    }
};

} // namespace drawing
