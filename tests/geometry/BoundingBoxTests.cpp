// Boxes around curves.
#include "drawing/geometry/BoundingBox.h"
#include "tests/geometry/CurveSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

using namespace geometry;
using geometrytests::ClampedKnots;
using geometrytests::MakeCurve;

void ExpectBox(const Box& box, Point minimum, Point maximum, double precision = 1e-11) {
    EXPECT_NEAR(box.minimum.x, minimum.x, precision);
    EXPECT_NEAR(box.minimum.y, minimum.y, precision);
    EXPECT_NEAR(box.maximum.x, maximum.x, precision);
    EXPECT_NEAR(box.maximum.y, maximum.y, precision);
}

TEST(CurveBox, ParabolaReachesHalfItsControlPoint) {
    ExpectBox(BoundingBox(MakeCurve(2, ClampedKnots(2, 3), {{0, 0}, {5, 10}, {10, 0}})), {0, 0}, {10, 5});
}

TEST(CurveBox, CubicWithItsExtremaInside) {
    // x = 9 t (1-t)^2 - 9 t^2 (1-t) ... over control x 0, 3, -3, 0: extrema at t = (3 -+ sqrt 3) / 6, x = -+
    // sqrt 3 / 2.
    ExpectBox(BoundingBox(MakeCurve(3, ClampedKnots(3, 4), {{0, 0}, {3, 1}, {-3, 2}, {0, 3}})),
              {-std::sqrt(3.0) / 2, 0}, {std::sqrt(3.0) / 2, 3});
}

TEST(CurveBox, RationalCircleIsAsWideAsItsDiameter) {
    ExpectBox(BoundingBox(geometrytests::UnitCircle()), {-1, -1}, {1, 1}, 1e-15);
}

TEST(CurveBox, ExtentIsExactlyZeroWhereControlPointsAgree) {
    const double y = 1.0 / 3.0;
    const Box flat =
        BoundingBox(MakeCurve(3, {0, 0, 0, 0, 0.3, 0.7, 1, 1, 1, 1},
                              {{0, y}, {1, y}, {5, y}, {-3, y}, {9, y}, {7, y}}, {1, 2, 3, 0.1, 0.7, 1}));
    EXPECT_EQ(flat.minimum.y, y);
    EXPECT_EQ(flat.maximum.y, y);
    const Box point = BoundingBox(MakeCurve(2, ClampedKnots(2, 5), std::vector<Point>(5, {0.1, 0.2})));
    EXPECT_EQ(point.minimum, (Point{0.1, 0.2}));
    EXPECT_EQ(point.maximum, (Point{0.1, 0.2}));
}

TEST(CurveBox, CurveThatIsNotClampedDoesNotReachItsOuterControlPoints) {
    ExpectBox(BoundingBox(MakeCurve(2, {0, 1, 2, 3, 4, 5}, {{0, 0}, {2, 0}, {2, 2}})), {1, 0}, {2, 1});
}

void ExpectTrueBox(const geometry::NurbsCurve& curve, const std::string& name) {
    const Box box = BoundingBox(curve);
    const geometry::Interval interval = geometry::ParameterInterval(curve);
    std::vector<double> parameters = curve.knots; // corners stand there
    const int steps = 20000;
    for (int step = 0; step <= steps; ++step) {
        parameters.push_back(interval.start + (interval.end - interval.start) * step / steps);
    }
    Box seen{Evaluate(curve, interval.start), Evaluate(curve, interval.start)};
    for (const double parameter : parameters) {
        const Point point = Evaluate(curve, parameter);
        seen.minimum = {std::min(seen.minimum.x, point.x), std::min(seen.minimum.y, point.y)};
        seen.maximum = {std::max(seen.maximum.x, point.x), std::max(seen.maximum.y, point.y)};
    }
    const double extent = std::max({seen.maximum.x - seen.minimum.x, seen.maximum.y - seen.minimum.y, 1e-6});
    const double holds = 1e-11 * extent + 1e-14 * std::fabs(seen.maximum.x);
    EXPECT_LE(box.minimum.x, seen.minimum.x + holds) << name;
    EXPECT_LE(box.minimum.y, seen.minimum.y + holds) << name;
    EXPECT_GE(box.maximum.x, seen.maximum.x - holds) << name;
    EXPECT_GE(box.maximum.y, seen.maximum.y - holds) << name;
    // Dense points miss an extremum by the square of their spacing; light weights make a curve run fast.
    const double tight = 1e-3 * extent;
    EXPECT_NEAR(box.minimum.x, seen.minimum.x, tight) << name;
    EXPECT_NEAR(box.minimum.y, seen.minimum.y, tight) << name;
    EXPECT_NEAR(box.maximum.x, seen.maximum.x, tight) << name;
    EXPECT_NEAR(box.maximum.y, seen.maximum.y, tight) << name;
}

TEST(CurveBox, HoldsDifficultCurvesTightly) {
    for (const geometrytests::NamedCurve& named : geometrytests::DifficultCurves()) {
        ExpectTrueBox(named.curve, named.name);
    }
}

TEST(CurveBox, HoldsRandomCurvesTightly) {
    std::mt19937_64 random(7);
    for (int round = 0; round < 30; ++round) {
        ExpectTrueBox(geometrytests::RandomCurve(random), "round " + std::to_string(round));
    }
}

TEST(CurveBox, FlatTopsAndFarCurvesEnd) {
    // A curve of degree 255 that stays near its greatest height almost everywhere.
    std::vector<Point> points(256, {0, 1e6 + 1});
    for (std::size_t index = 0; index < points.size(); ++index) {
        points[index].x = static_cast<double>(index);
    }
    points.front().y = 0;
    points.back().y = 0;
    const Box box = BoundingBox(MakeCurve(255, ClampedKnots(255, 256), points));
    EXPECT_NEAR(box.maximum.y, 1e6 + 1, 1e-4);
    EXPECT_EQ(box.minimum.y, 0.0);
}

} // namespace
