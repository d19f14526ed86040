// Arcs along curves.
#include "StyleConversion/block/SplineArcs.h"

#include "OxDb/OxGeNurbCurve2d.h"
#include "drawing/entities/SplineCurves.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <numbers>
#include <random>

namespace {

using block::CurveVertex;
using block::FollowCurve;

double Apart(const OxGePoint2d& a, const OxGePoint2d& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

// The circle of the arc between two vertices.
struct Circle {
    OxGePoint2d center;
    double radius = 0.0;
};

Circle CircleOf(const CurveVertex& from, const OxGePoint2d& to) {
    const double toCenter = (1.0 - from.bulge * from.bulge) / (4.0 * from.bulge);
    const OxGePoint2d center = {(from.point.x + to.x) / 2.0 - (to.y - from.point.y) * toCenter,
                                (from.point.y + to.y) / 2.0 + (to.x - from.point.x) * toCenter};
    return {center, Apart(center, from.point)};
}

// So many points of the segment behind a vertex, and the vertex.
std::vector<OxGePoint2d> PointsOf(const CurveVertex& from, const OxGePoint2d& to, int count) {
    std::vector<OxGePoint2d> points;
    for (int i = 0; i < count; ++i) {
        const double part = static_cast<double>(i) / count;
        if (std::fabs(from.bulge) < 1e-9) {
            points.push_back(
                {from.point.x + (to.x - from.point.x) * part, from.point.y + (to.y - from.point.y) * part});
            continue;
        }
        const Circle circle = CircleOf(from, to);
        const double angle = 4.0 * std::atan(from.bulge) * part;
        const double x = from.point.x - circle.center.x;
        const double y = from.point.y - circle.center.y;
        points.push_back({circle.center.x + x * std::cos(angle) - y * std::sin(angle),
                          circle.center.y + x * std::sin(angle) + y * std::cos(angle)});
    }
    return points;
}

double ToSegment(const OxGePoint2d& point, const CurveVertex& from, const OxGePoint2d& to) {
    const double x = to.x - from.point.x;
    const double y = to.y - from.point.y;
    const double square = x * x + y * y;
    const double along = (point.x - from.point.x) * x + (point.y - from.point.y) * y;
    const double at = square > 0.0 ? along / square : 0.0;
    if (at < 0.0 || at > 1.0) {
        return std::min(Apart(point, from.point), Apart(point, to));
    }
    if (std::fabs(from.bulge) < 1e-9) {
        return std::hypot(point.x - from.point.x - at * x, point.y - from.point.y - at * y);
    }
    const Circle circle = CircleOf(from, to); // of less than half a turn, beside its chord
    return std::fabs(Apart(point, circle.center) - circle.radius);
}

// How far the points are from the segments at most. Both run alike, so that each point is looked for near the
// place of the one before it.
double Farthest(const std::vector<OxGePoint2d>& points, const std::vector<CurveVertex>& way) {
    double farthest = 0.0;
    std::size_t at = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double reach = i == 0 ? 0.0 : 3.0 * Apart(points[i - 1], points[i]);
        double nearest = 1e300;
        double walked = 0.0;
        for (std::size_t k = at; k + 1 < way.size() && walked <= reach; ++k) {
            const double distance = ToSegment(points[i], way[k], way[k + 1].point);
            if (distance < nearest) {
                nearest = distance;
                at = k;
            }
            walked += k > at ? Apart(way[k].point, way[k + 1].point) : 0.0;
        }
        farthest = std::max(farthest, nearest);
    }
    return farthest;
}

std::vector<CurveVertex> Straight(const std::vector<OxGePoint2d>& points) {
    std::vector<CurveVertex> vertices;
    vertices.reserve(points.size());
    for (const OxGePoint2d& point : points) {
        vertices.push_back({point, 0.0});
    }
    return vertices;
}

std::vector<OxGePoint2d> PointsOfAll(const std::vector<CurveVertex>& vertices) {
    constexpr int kPointsEach = 8;
    std::vector<OxGePoint2d> all;
    for (std::size_t i = 0; i + 1 < vertices.size(); ++i) {
        const std::vector<OxGePoint2d> points = PointsOf(vertices[i], vertices[i + 1].point, kPointsEach);
        all.insert(all.end(), points.begin(), points.end());
    }
    all.push_back(vertices.back().point);
    return all;
}

std::vector<OxGePoint2d> SamplesOf(OxGeNurbCurve2d& curve, double tolerance) {
    OxGeInterval range;
    curve.getInterval(range);
    OxGePoint2dArray points;
    OxGeDoubleArray parameters;
    curve.getSamplePoints(range.lowerBound(), range.upperBound(), tolerance, points, parameters);
    std::vector<OxGePoint2d> samples;
    for (int i = 0; i < points.length(); ++i) {
        samples.push_back(points[i]);
    }
    return samples;
}

/// A random spline of that size about a point, smooth or with corners, rational or not.
drawing::NurbsData RandomSpline(std::mt19937& random, double size, double away) {
    std::uniform_real_distribution<double> part(0.0, 1.0);
    drawing::NurbsData data;
    data.degree = 2 + static_cast<int>(random() % 3);
    const int count = data.degree + 1 + static_cast<int>(random() % 12);
    const bool isRational = random() % 2 == 0;
    for (int i = 0; i < count; ++i) {
        data.controlPoints.push_back({away + size * part(random), away + size * part(random), 0.0});
        if (isRational) {
            data.weights.push_back(0.2 + 3.0 * part(random));
        }
    }
    double knot = 0.0;
    for (int i = 0; i < count + data.degree + 1; ++i) {
        const bool isRepeated =
            i > data.degree && random() % 6 == 0 && data.knots[i - 1] != data.knots[i - 2];
        if (i == count) {
            knot += 1.0;
        } else if (i > data.degree && i < count && !isRepeated) {
            knot += 0.1 + part(random);
        }
        data.knots.push_back(knot);
    }
    return data;
}

TEST(SplineArcs, StayWithinTheToleranceBothWays) {
    std::mt19937 random(20);
    for (const double size : {1e-4, 1.0, 1e6}) {
        for (const double away : {0.0, 10.0}) {
            for (int round = 0; round < 6; ++round) {
                const std::unique_ptr<OxGeNurbCurve2d> curve =
                    drawing::BuildCurve(RandomSpline(random, size, away * size));
                const double tolerance = size * 1e-6;
                const std::vector<OxGePoint2d> exact = SamplesOf(*curve, tolerance * 0.02);
                const std::vector<CurveVertex> vertices = FollowCurve(*curve, tolerance);
                ASSERT_GE(exact.size(), 2U);
                ASSERT_GE(vertices.size(), 2U);
                EXPECT_LE(Farthest(exact, vertices), tolerance * 1.02) << size << ' ' << round;
                EXPECT_LE(Farthest(PointsOfAll(vertices), Straight(exact)), tolerance * 1.02)
                    << size << ' ' << round;
                EXPECT_LT(Apart(vertices.front().point, exact.front()), size * 1e-12);
                EXPECT_LT(Apart(vertices.back().point, exact.back()), size * 1e-12);
            }
        }
    }
}

TEST(SplineArcs, AreFewWhereTheCurveIsSmooth) {
    // y = 4 x (1 - x): chords within a millionth would be 1 / (2 * sqrt(1e-6)) = 500 at least.
    drawing::NurbsData parabola;
    parabola.controlPoints = {{0, 0, 0}, {1.0 / 3, 4.0 / 3, 0}, {2.0 / 3, 4.0 / 3, 0}, {1, 0, 0}};
    parabola.knots = {0, 0, 0, 0, 1, 1, 1, 1};
    EXPECT_LT(FollowCurve(*drawing::BuildCurve(parabola), 1e-6).size(), 120U);
}

TEST(SplineArcs, OfACircleLieOnIt) {
    drawing::NurbsData quarter;
    quarter.degree = 2;
    quarter.controlPoints = {{3, 0, 0}, {3, 3, 0}, {0, 3, 0}};
    quarter.weights = {1, std::numbers::sqrt2 / 2, 1};
    quarter.knots = {0, 0, 0, 1, 1, 1};
    const std::vector<CurveVertex> vertices = FollowCurve(*drawing::BuildCurve(quarter), 1e-6);
    EXPECT_LE(vertices.size(), 4U);
    for (std::size_t i = 0; i + 1 < vertices.size(); ++i) {
        const Circle circle = CircleOf(vertices[i], vertices[i + 1].point);
        EXPECT_NEAR(circle.center.x, 0.0, 1e-9);
        EXPECT_NEAR(circle.center.y, 0.0, 1e-9);
        EXPECT_NEAR(circle.radius, 3.0, 1e-9);
    }
}

TEST(SplineArcs, OfStraightCurvesAreSegments) {
    drawing::NurbsData line;
    line.controlPoints = {{0, 0, 0}, {1, 2, 0}, {2, 4, 0}, {3, 6, 0}};
    line.knots = {0, 0, 0, 0, 1, 1, 1, 1};
    const std::vector<CurveVertex> vertices = FollowCurve(*drawing::BuildCurve(line), 1e-6);
    ASSERT_GE(vertices.size(), 2U);
    for (const CurveVertex& vertex : vertices) {
        EXPECT_NEAR(vertex.bulge, 0.0, 1e-12);
        EXPECT_NEAR(vertex.point.y, 2.0 * vertex.point.x, 1e-12);
    }
}

TEST(SplineArcs, CurvesOfOnePointAndWithoutPointsAreSafe) {
    drawing::NurbsData point;
    point.controlPoints = {{1, 1, 0}, {1, 1, 0}, {1, 1, 0}, {1, 1, 0}};
    point.knots = {0, 0, 0, 0, 1, 1, 1, 1};
    for (const CurveVertex& vertex : FollowCurve(*drawing::BuildCurve(point), 1e-6)) {
        EXPECT_EQ(vertex.point.x, 1.0);
        EXPECT_EQ(vertex.bulge, 0.0);
    }
    EXPECT_TRUE(FollowCurve(*drawing::BuildCurve(drawing::NurbsData()), 1e-6).empty());
}

} // namespace
