// Bounding boxes by halving the pieces whose control points still reach out of the box of points found.
#include "drawing/geometry/BoundingBox.h"

#include "drawing/geometry/BezierChain.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace geometry {

namespace {

/// Halvings allowed for one piece. A control polygon nears its curve by a factor of 4 with each: 20 reach
/// 1e-12, and only pieces near the sides are halved.
constexpr std::size_t kHalvingsPerPiece = 1000;

void Include(Box& box, Point point) {
    box.minimum = {std::min(box.minimum.x, point.x), std::min(box.minimum.y, point.y)};
    box.maximum = {std::max(box.maximum.x, point.x), std::max(box.maximum.y, point.y)};
}

Box BoxOf(std::span<const Point> points) {
    Box box{points.front(), points.front()};
    for (const Point& point : points) {
        Include(box, point);
    }
    return box;
}

/// How far the inner box may stay behind the outer one.
double Precision(const Box& outer) {
    const double extent = std::max(outer.maximum.x - outer.minimum.x, outer.maximum.y - outer.minimum.y);
    const double magnitude = std::max(std::max(std::fabs(outer.minimum.x), std::fabs(outer.maximum.x)),
                                      std::max(std::fabs(outer.minimum.y), std::fabs(outer.maximum.y)));
    return std::max(1e-12 * extent, 16.0 * std::numeric_limits<double>::epsilon() * magnitude);
}

bool Reaches(const Box& box, const Box& other, double precision) {
    return other.minimum.x < box.minimum.x - precision || other.minimum.y < box.minimum.y - precision ||
           other.maximum.x > box.maximum.x + precision || other.maximum.y > box.maximum.y + precision;
}

} // namespace

Box BoundingBox(const NurbsCurve& curve) {
    const BezierChain chain = DecomposeIntoBezier(curve);
    const double precision = Precision(BoxOf(chain.points));
    Box box{chain.points.front(), chain.points.front()};
    const std::size_t order = static_cast<std::size_t>(chain.degree) + 1;
    for (std::size_t piece = 0; piece < PieceCount(chain); ++piece) {
        Include(box, chain.points[piece * order + order - 1]);
    }
    BezierStack stack(chain);
    for (std::size_t piece = 0; piece < PieceCount(chain); ++piece) {
        std::size_t halvings = 0;
        stack.Push(piece, 0.0, 1.0);
        while (!stack.IsEmpty()) {
            Include(box, stack.TopPoints().front());
            Include(box, stack.TopPoints().back());
            const Box hull = BoxOf(stack.TopPoints());
            if (!Reaches(box, hull, precision)) {
                stack.Pop();
            } else if (halvings == kHalvingsPerPiece) {
                Include(box, hull.minimum);
                Include(box, hull.maximum);
                stack.Pop();
            } else {
                ++halvings;
                stack.HalveTop();
            }
        }
    }
    return box;
}

} // namespace geometry
