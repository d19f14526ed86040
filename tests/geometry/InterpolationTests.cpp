// Curves through given points.
#include "drawing/geometry/Interpolation.h"
#include "drawing/geometry/Limits.h"
#include "tests/geometry/CurveSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using namespace geometry;
using geometrytests::ExpectNear;

NurbsCurve Through(const std::vector<Point>& points, const std::optional<EndTangents>& tangents = {}) {
    NurbsCurve curve;
    EXPECT_EQ(InterpolateThroughPoints(points, tangents, curve), Status::kOk);
    return curve;
}

/// The parabola through the curve at t, t + h and t + 2 h (h negative: from the left), differentiated at t:
/// exact for the first derivative up to h squared.
Vector OneSidedFirst(const NurbsCurve& curve, double t, double h) {
    return (1.0 / (2.0 * h)) *
           (4.0 * Evaluate(curve, t + h) - 3.0 * Evaluate(curve, t) - Evaluate(curve, t + 2.0 * h));
}

/// The second derivative at t from one side, from four points: exact for a cubic.
Vector OneSidedSecond(const NurbsCurve& curve, double t, double h) {
    return (1.0 / (h * h)) * (2.0 * Evaluate(curve, t) - 5.0 * Evaluate(curve, t + h) +
                              4.0 * Evaluate(curve, t + 2.0 * h) - Evaluate(curve, t + 3.0 * h));
}

std::vector<Point> RandomPoints(std::mt19937_64& random, std::size_t count) {
    std::vector<Point> points;
    for (std::size_t index = 0; index < count; ++index) {
        points.push_back(
            {geometrytests::RandomBetween(random, -10, 10), geometrytests::RandomBetween(random, -10, 10)});
    }
    return points;
}

TEST(Interpolation, PassesThroughEveryPointAtItsChordLength) {
    std::mt19937_64 random(4);
    for (std::size_t count = 2; count < 40; ++count) {
        const std::vector<Point> points = RandomPoints(random, count);
        const NurbsCurve curve =
            count % 2 == 0 ? Through(points) : Through(points, EndTangents{{1, 2}, {-3, 0.5}});
        double parameter = 0.0;
        ExpectNear(Evaluate(curve, 0.0), points[0], 0.0);
        for (std::size_t index = 1; index < count; ++index) {
            parameter += Distance(points[index - 1], points[index]);
            ExpectNear(Evaluate(curve, parameter), points[index], 1e-10);
        }
        EXPECT_NEAR(geometry::ParameterInterval(curve).end, parameter, 1e-10);
        EXPECT_EQ(curve.degree, 3);
        EXPECT_EQ(curve.controlPoints.size(), count + 2);
        EXPECT_EQ(curve.knots.size(), count + 6);
    }
}

TEST(Interpolation, FirstAndSecondDerivativesAreContinuousAtThePoints) {
    std::mt19937_64 random(5);
    for (int round = 0; round < 20; ++round) {
        const std::vector<Point> points = RandomPoints(random, 8);
        const NurbsCurve curve = Through(points, EndTangents{{1, 2}, {-3, 0.5}});
        for (std::size_t knot = 4; knot + 4 < curve.knots.size(); ++knot) {
            const double shortest = std::min(curve.knots[knot] - curve.knots[knot - 1],
                                             curve.knots[knot + 1] - curve.knots[knot]);
            const double t = curve.knots[knot];
            const double h = shortest / 3.0;
            const double scale = std::max(1.0, Length(OneSidedSecond(curve, t, h)));
            ExpectNear(OneSidedSecond(curve, t, -h), OneSidedSecond(curve, t, h), 1e-9 * scale / (h * h));
            const double small = 1e-4 * shortest;
            ExpectNear(OneSidedFirst(curve, t, -small), OneSidedFirst(curve, t, small), 1e-5);
        }
    }
}

TEST(Interpolation, EndTangentsGiveTheDirectionAtUnitSpeedWhateverTheirLength) {
    const std::vector<Point> points = {{0, 0}, {3, 4}, {10, 4}};
    for (const double length : {1e-200, 0.5, 1.0, 77.0, 1e200}) {
        const NurbsCurve curve = Through(points, EndTangents{{0, length}, {3 * length, -4 * length}});
        // A clamped cubic leaves its end by 3 / (first knot length) times the first leg: lengths 5 and 7
        // here.
        ExpectNear((3.0 / 5.0) * (curve.controlPoints[1] - points[0]), {0, 1});
        ExpectNear((3.0 / 7.0) * (points[2] - curve.controlPoints[3]), {0.6, -0.8});
    }
}

TEST(Interpolation, ZeroTangentLeavesItsEndFree) {
    const std::vector<Point> points = {{0, 0}, {3, 4}, {10, 4}, {11, 0}};
    const NurbsCurve half = Through(points, EndTangents{{0, 0}, {0, -1}});
    ExpectNear(OneSidedSecond(half, 0.0, 1.0), {0, 0}, 1e-10);
    const NurbsCurve free = Through(points, EndTangents{{0, 0}, {0, 0}});
    EXPECT_EQ(free.controlPoints, Through(points).controlPoints);
}

TEST(Interpolation, WithoutTangentsTheSecondDerivativeIsZeroAtBothEnds) {
    const std::vector<Point> points = {{0, 0}, {3, 4}, {10, 4}, {11, 0}};
    const NurbsCurve curve = Through(points);
    ExpectNear(OneSidedSecond(curve, 0.0, 1.0), {0, 0}, 1e-10);
    ExpectNear(OneSidedSecond(curve, geometry::ParameterInterval(curve).end, -1.0), {0, 0}, 1e-10);
}

TEST(Interpolation, TwoPointsWithoutTangentsGiveTheStraightLine) {
    const NurbsCurve curve = Through({{1, 1}, {4, 5}});
    for (int step = 0; step <= 10; ++step) {
        ExpectNear(Evaluate(curve, 0.5 * step), {1 + 0.3 * step, 1 + 0.4 * step});
    }
}

TEST(Interpolation, TwoPointsWithTangentsGiveTheCubicOfThoseEnds) {
    const NurbsCurve curve = Through({{0, 0}, {6, 0}}, EndTangents{{0, 1}, {0, -1}});
    const std::vector<Point> expected = {{0, 0}, {0, 2}, {6, 2}, {6, 0}};
    ASSERT_EQ(curve.controlPoints.size(), expected.size());
    for (std::size_t index = 0; index < expected.size(); ++index) {
        ExpectNear(curve.controlPoints[index], expected[index]);
    }
}

TEST(Interpolation, ThreePointsByHand) {
    // Lengths 1 and 1, natural ends: 2 D0 + D1 = 3 (1, 0); D0 / 2 + 2 D1 + D2 / 2 = (3/2, 3/2); D1 + 2 D2 = 3
    // (0, 1): D0 = (5, -1) / 4, D1 = (1, 1) / 2, D2 = (-1, 5) / 4.
    const NurbsCurve curve = Through({{0, 0}, {1, 0}, {1, 1}});
    const std::vector<Point> expected = {
        {0, 0}, {5.0 / 12, -1.0 / 12}, {1.25, -0.25}, {13.0 / 12, 7.0 / 12}, {1, 1}};
    ASSERT_EQ(curve.controlPoints.size(), expected.size());
    for (std::size_t index = 0; index < expected.size(); ++index) {
        ExpectNear(curve.controlPoints[index], expected[index]);
    }
}

TEST(Interpolation, PointsOfACubicWithItsEndTangentsGiveAStraightLineBack) {
    std::vector<Point> points;
    for (const double t : {0.0, 0.1, 3.0, 3.5, 10.0}) {
        points.push_back({1 + 3 * t, 2 - 4 * t});
    }
    const NurbsCurve curve = Through(points, EndTangents{{3, -4}, {3, -4}});
    for (const Point& point : curve.controlPoints) {
        EXPECT_NEAR(Cross(point - points[0], Vector{3, -4}), 0.0, 1e-11);
    }
}

TEST(Interpolation, OnePointGivesACurveThatStaysThere) {
    for (const std::size_t copies : {1U, 2U, 5U}) {
        const NurbsCurve curve = Through(std::vector<Point>(copies, {0.1, 0.7}), EndTangents{{1, 0}, {0, 1}});
        for (const double t : {0.0, 0.3, 1.0}) {
            EXPECT_EQ(Evaluate(curve, t), (Point{0.1, 0.7}));
        }
        EXPECT_EQ(geometry::ParameterInterval(curve).end, 1.0);
    }
}

TEST(Interpolation, RepeatedPointsCountOnce) {
    const NurbsCurve curve = Through({{0, 0}, {0, 0}, {3, 4}, {3, 4}, {3, 4 + 1e-11}, {10, 4}, {10, 4}});
    EXPECT_EQ(curve.controlPoints, Through({{0, 0}, {3, 4}, {10, 4}}).controlPoints);
}

TEST(Interpolation, PointsMetAgainLaterAreKept) {
    const NurbsCurve curve = Through({{0, 0}, {1, 1}, {2, 0}, {0, 0}});
    EXPECT_EQ(curve.controlPoints.size(), 6U);
    EXPECT_TRUE(IsClosed(curve));
}

TEST(Interpolation, TurnedMovedAndScaledPointsGiveTheCurveTurnedMovedAndScaled) {
    std::mt19937_64 random(6);
    const std::vector<Point> points = RandomPoints(random, 12);
    const auto moved = [](Point p) { return Point{7 + 3 * p.x - 4 * p.y, -2 + 4 * p.x + 3 * p.y}; };
    std::vector<Point> other(points.size());
    std::transform(points.begin(), points.end(), other.begin(), moved);
    const NurbsCurve curve = Through(points);
    const NurbsCurve image = Through(other);
    for (std::size_t index = 0; index < curve.controlPoints.size(); ++index) {
        ExpectNear(image.controlPoints[index], moved(curve.controlPoints[index]), 1e-10);
        EXPECT_NEAR(image.knots[index], 5 * curve.knots[index], 1e-10);
    }
}

TEST(Interpolation, NumbersThatCannotBeUsedAreRefused) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    NurbsCurve curve;
    EXPECT_EQ(InterpolateThroughPoints({}, {}, curve), Status::kTooFewPoints);
    EXPECT_EQ(InterpolateThroughPoints({{0, 0}, {nan, 1}}, {}, curve), Status::kNotFinite);
    EXPECT_EQ(InterpolateThroughPoints({{0, 0}, {1, infinity}}, {}, curve), Status::kNotFinite);
    EXPECT_EQ(InterpolateThroughPoints({{0, 0}, {1e308, 1}}, {}, curve), Status::kOutOfRange);
    EXPECT_EQ(InterpolateThroughPoints({{0, 0}, {1, 1}}, EndTangents{{nan, 0}, {1, 0}}, curve),
              Status::kNotFinite);
    EXPECT_TRUE(curve.controlPoints.empty());
}

TEST(Interpolation, HugeAndTinyDistancesTogetherStayFinite) {
    const NurbsCurve curve =
        Through({{0, 0}, {1e-9, 0}, {1e90, 1}, {1e90, 2}, {-1e90, 3}}, EndTangents{{1e300, 1e300}, {1, 0}});
    for (const Point& point : curve.controlPoints) {
        EXPECT_TRUE(IsFinite(point));
    }
}

} // namespace
