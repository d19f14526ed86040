// Arithmetic of points and vectors of the plane.
#pragma once

#include "OxDb/OxGePoint.h"

#include <cmath>

namespace geometry {

/// The interface's point, in drawing units. Nothing is checked here.
using Point = OxGePoint2d;

/// The same pair of numbers where it means a direction or a displacement.
using Vector = Point;

inline Point operator+(Point a, Point b) {
    return {a.x + b.x, a.y + b.y};
}

inline Point operator-(Point a, Point b) {
    return {a.x - b.x, a.y - b.y};
}

inline Point operator*(double factor, Point a) {
    return {factor * a.x, factor * a.y};
}

/// The scalar product.
inline double Dot(Vector a, Vector b) {
    return a.x * b.x + a.y * b.y;
}

/// Whether both coordinates are numbers and not infinite.
inline bool IsFinite(Point a) {
    return std::isfinite(a.x) && std::isfinite(a.y);
}

/// Twice the signed area of the triangle (0, a, b): positive when b lies to the left of a.
inline double Cross(Vector a, Vector b) {
    return a.x * b.y - a.y * b.x;
}

/// In drawing units.
inline double Length(Vector a) {
    return std::sqrt(a.x * a.x + a.y * a.y);
}

/// The vector turned by +90 degrees.
inline Vector TurnedLeft(Vector a) {
    return {-a.y, a.x};
}

/// In drawing units.
inline double Distance(Point a, Point b) {
    return Length(b - a);
}

/// The point at `share` of the way from a to b, or from b to a: exact where the way starts.
inline Point OnTheWay(Point a, Point b, double share) {
    return {a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)};
}
inline Point OnTheWayBack(Point a, Point b, double share) {
    return {b.x - share * (b.x - a.x), b.y - share * (b.y - a.y)};
}

/// The point at `fraction` of the way from a to b. Exact at both ends, and where both ends are the same
/// point.
inline Point Between(Point a, Point b, double fraction) {
    return fraction <= 0.5 ? OnTheWay(a, b, fraction) : OnTheWayBack(a, b, 1.0 - fraction);
}

} // namespace geometry
