// Points and vectors of the plane.
#pragma once

#include <cmath>

namespace geometry {

/// A point, or a vector, in drawing units. Plain data: nothing is checked here.
struct Point {
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const Point&, const Point&) = default;
};

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

inline double Dot(Vector a, Vector b) {
    return a.x * b.x + a.y * b.y;
}

/// Twice the signed area of the triangle (0, a, b): positive when b lies to the left of a.
inline double Cross(Vector a, Vector b) {
    return a.x * b.y - a.y * b.x;
}

inline double Length(Vector a) {
    return std::sqrt(a.x * a.x + a.y * a.y);
}

inline double Distance(Point a, Point b) {
    return Length(b - a);
}

/// The point at `fraction` of the way from a to b. Written so that equal ends give that very point, without
/// rounding, whatever the fraction.
inline Point Between(Point a, Point b, double fraction) {
    return {a.x + fraction * (b.x - a.x), a.y + fraction * (b.y - a.y)};
}

} // namespace geometry
