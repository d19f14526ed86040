// Points of the plane and boxes around them.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace preview {

struct Point {
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const Point&, const Point&) = default;
    friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
    friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
    friend Point operator*(Point a, double factor) { return {a.x * factor, a.y * factor}; }
};

inline double Length(Point vector) {
    return std::sqrt(vector.x * vector.x + vector.y * vector.y);
}

/// Turns a vector counter-clockwise (y up) by an angle given as its cosine and sine.
inline Point Turned(Point vector, double cosine, double sine) {
    return {vector.x * cosine - vector.y * sine, vector.x * sine + vector.y * cosine};
}

/// The smallest box, sides along the axes, around all points that were included. Empty at first.
struct Box {
    Point low{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
    Point high{-std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};

    bool IsEmpty() const { return !(low.x <= high.x && low.y <= high.y); }
    double Width() const { return IsEmpty() ? 0.0 : high.x - low.x; }
    double Height() const { return IsEmpty() ? 0.0 : high.y - low.y; }
    Point Middle() const {
        return IsEmpty() ? Point{} : Point{low.x / 2 + high.x / 2, low.y / 2 + high.y / 2};
    }

    void Include(Point point) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    void Include(const Box& box) {
        if (!box.IsEmpty()) {
            Include(box.low);
            Include(box.high);
        }
    }
};

} // namespace preview
