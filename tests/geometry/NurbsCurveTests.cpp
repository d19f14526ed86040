// Building, evaluating and closing NURBS curves.
#include "drawing/geometry/Limits.h"
#include "drawing/geometry/NurbsCurve.h"
#include "tests/geometry/CurveSamples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace geometry;
using geometrytests::ClampedKnots;
using geometrytests::ExpectNear;
using geometrytests::MakeCurve;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

struct Refusal {
    const char* name;
    int degree;
    std::vector<double> knots;
    std::vector<Point> points;
    std::vector<double> weights;
    Status status;
};

TEST(NurbsCurve, DataThatMakesNoCurveIsRefusedAndTheCurveLeftAlone) {
    const std::vector<Point> three = {{0, 0}, {1, 2}, {3, 0}};
    const std::vector<double> knots = {0, 0, 0, 1, 1, 1};
    const std::vector<Refusal> refusals = {
        {"degree 0", 0, {0, 1, 2, 3}, three, {}, Status::kBadDegree},
        {"negative degree", -1, knots, three, {}, Status::kBadDegree},
        {"no points", 2, {0, 0, 0}, {}, {}, Status::kTooFewPoints},
        {"as many points as the degree", 3, {0, 0, 0, 1, 1, 1, 1}, three, {}, Status::kTooFewPoints},
        {"a knot too few", 2, {0, 0, 0, 1, 1}, three, {}, Status::kBadKnotCount},
        {"a knot too many", 2, {0, 0, 0, 1, 1, 1, 1}, three, {}, Status::kBadKnotCount},
        {"one period, not periodic", 2, {0, 1, 2, 3}, three, {}, Status::kBadKnotCount},
        {"decreasing knots", 2, {0, 0, 0, 1, 0.5, 1}, three, {}, Status::kDecreasingKnots},
        {"all knots equal", 2, {1, 1, 1, 1, 1, 1}, three, {}, Status::kEmptyInterval},
        {"a knot that is not a number", 2, {0, 0, kNan, 1, 1, 1}, three, {}, Status::kNotFinite},
        {"an infinite knot", 2, {0, 0, 0, 1, 1, kInfinity}, three, {}, Status::kNotFinite},
        {"a knot too large", 2, {0, 0, 0, 1e308, 1e308, 1e308}, three, {}, Status::kOutOfRange},
        {"an infinite point", 2, knots, {{0, 0}, {kInfinity, 2}, {3, 0}}, {}, Status::kNotFinite},
        {"a point too large", 2, knots, {{0, 0}, {1, -1e308}, {3, 0}}, {}, Status::kOutOfRange},
        {"a weight too few", 2, knots, three, {1, 1}, Status::kBadWeights},
        {"a weight of zero", 2, knots, three, {1, 0, 1}, Status::kBadWeights},
        {"a negative weight", 2, knots, three, {1, -1, 1}, Status::kBadWeights},
        {"a weight that is not a number", 2, knots, three, {1, kNan, 1}, Status::kNotFinite},
        {"weights too far apart", 2, knots, three, {1, 1.1e9, 1}, Status::kBadWeights},
        {"torn apart by a knot",
         1,
         {0, 0, 1, 1, 2, 2},
         {{0, 0}, {1, 0}, {1, 1}, {2, 1}},
         {},
         Status::kDiscontinuous},
    };
    const NurbsCurve before = MakeCurve(1, {5, 5, 6, 6}, {{7, 8}, {9, 10}});
    for (const Refusal& refusal : refusals) {
        NurbsCurve curve = before;
        EXPECT_EQ(
            MakeNurbsCurve(refusal.degree, refusal.knots, refusal.points, refusal.weights, false, curve),
            refusal.status)
            << refusal.name;
        EXPECT_EQ(curve.knots, before.knots) << refusal.name;
        EXPECT_EQ(curve.controlPoints, before.controlPoints) << refusal.name;
    }
}

TEST(NurbsCurve, WeightsAtTheLimitOfTheirRatioAreAccepted) {
    const NurbsCurve curve = MakeCurve(2, ClampedKnots(2, 3), {{0, 0}, {1, 1}, {2, 0}}, {1, 1e9, 1});
    ExpectNear(Evaluate(curve, 0.5), {1, 1}, 1e-8);
}

TEST(NurbsCurve, DegreeAtTheLimitIsAcceptedAndOnePastItRefused) {
    for (const int past : {0, 1}) {
        const int degree = geometry::kMaximumDegree + past;
        std::vector<Point> points;
        for (int index = 0; index <= degree; ++index) {
            points.push_back({static_cast<double>(index), 2.0 * index});
        }
        NurbsCurve curve;
        const Status status =
            MakeNurbsCurve(degree, ClampedKnots(degree, points.size()), points, {}, false, curve);
        EXPECT_EQ(status, past == 0 ? Status::kOk : Status::kBadDegree);
        if (past == 0) {
            // Evenly spaced control points on a line make a point that moves evenly.
            ExpectNear(Evaluate(curve, 0.25), {0.25 * degree, 0.5 * degree}, 1e-9);
        }
    }
}

TEST(NurbsCurve, KnotThatDecreasesByRoundingOnlyIsRaised) {
    const NurbsCurve curve = MakeCurve(1, {0, 0, 1, 1 - 1e-10, 2, 2}, {{0, 0}, {1, 0}, {1, 0}, {2, 1}});
    EXPECT_EQ(curve.knots[3], 1.0);
}

TEST(NurbsCurve, EndsOfAClampedCurveAreItsFirstAndLastControlPointExactly) {
    std::mt19937_64 random(1);
    for (int round = 0; round < 100; ++round) {
        const int degree = 1 + round % 7;
        std::vector<Point> points(static_cast<std::size_t>(degree) + 5);
        for (Point& point : points) {
            point = {geometrytests::RandomBetween(random, -1e5, 1e5),
                     geometrytests::RandomBetween(random, -1.0, 1.0)};
        }
        const NurbsCurve curve = MakeCurve(degree, ClampedKnots(degree, points.size()), points);
        const Interval interval = ParameterInterval(curve);
        EXPECT_EQ(Evaluate(curve, interval.start), points.front());
        EXPECT_EQ(Evaluate(curve, interval.end), points.back());
    }
}

TEST(NurbsCurve, PointsAgreeWithTheSumOfBasisFunctions) {
    std::mt19937_64 random(2);
    for (int round = 0; round < 300; ++round) {
        const NurbsCurve curve = geometrytests::RandomCurve(random);
        const Interval interval = ParameterInterval(curve);
        for (int step = 0; step <= 20; ++step) {
            const double parameter =
                step == 20 ? interval.end : interval.start + (interval.end - interval.start) * step / 20.0;
            ExpectNear(Evaluate(curve, parameter), geometrytests::ByDefinition(curve, parameter), 1e-10);
        }
        for (const double knot : curve.knots) {
            if (knot > interval.start && knot < interval.end) {
                ExpectNear(Evaluate(curve, knot), geometrytests::ByDefinition(curve, knot), 1e-10);
            }
        }
    }
}

TEST(NurbsCurve, ParametersOutsideTheIntervalGiveItsEnds) {
    const NurbsCurve curve = MakeCurve(2, {0, 1, 2, 3, 4, 5}, {{0, 0}, {2, 0}, {2, 2}});
    // Not clamped: the interval is [2, 3], and the ends are the middles of the control polygon's sides.
    for (const double before : {1.0, -1e300, -kInfinity, kNan}) {
        EXPECT_EQ(Evaluate(curve, before), (Point{1, 0}));
    }
    for (const double after : {3.5, 1e300, kInfinity}) {
        EXPECT_EQ(Evaluate(curve, after), (Point{2, 1}));
    }
}

TEST(NurbsCurve, RationalQuadraticRunsOnACircle) {
    const NurbsCurve circle = geometrytests::UnitCircle();
    for (int step = 0; step <= 400; ++step) {
        EXPECT_NEAR(geometry::Length(Evaluate(circle, step / 100.0)), 1.0, 1e-15);
    }
    ExpectNear(Evaluate(circle, 0.5), {std::sqrt(0.5), std::sqrt(0.5)}, 1e-15);
}

TEST(NurbsCurve, CoincidentControlPointsStayExactlyInPlace) {
    const std::vector<Point> points(6, {0.1, 1.0 / 3.0});
    const NurbsCurve curve = MakeCurve(3, {0, 0, 0, 0, 0.3, 0.7, 1, 1, 1, 1}, points, {1, 2, 0.3, 5, 7, 1});
    for (int step = 0; step <= 100; ++step) {
        EXPECT_EQ(Evaluate(curve, step / 100.0), points[0]);
    }
}

TEST(NurbsCurve, KnotRepeatedMoreOftenThanTheDegreeIsAcceptedWhereTheSidesMeet) {
    const NurbsCurve curve = MakeCurve(1, {0, 0, 1, 1, 2, 2}, {{0, 0}, {1, 0}, {1, 0}, {2, 1}});
    ExpectNear(Evaluate(curve, 0.5), {0.5, 0});
    ExpectNear(Evaluate(curve, 1.5), {1.5, 0.5});
}

TEST(NurbsCurve, PeriodicCurveFromOnePeriodEqualsTheOneWithEverythingWrittenOut) {
    const std::vector<Point> points = {{0, 0}, {4, 0}, {5, 3}, {2, 5}, {-1, 3}};
    const std::vector<double> period = {0, 1, 2.5, 3, 4, 6};
    NurbsCurve curve;
    ASSERT_EQ(MakeNurbsCurve(3, period, points, {}, true, curve), Status::kOk);
    std::vector<Point> repeated = points;
    repeated.insert(repeated.end(), points.begin(), points.begin() + 3);
    // Three knots before 0 and three after 6, each a period (6) away from one inside.
    const NurbsCurve full = MakeCurve(3, {-3.5, -3, -2, 0, 1, 2.5, 3, 4, 6, 7, 8.5, 9}, repeated);
    EXPECT_EQ(curve.knots, full.knots);
    EXPECT_EQ(curve.controlPoints, full.controlPoints);
    EXPECT_TRUE(IsClosed(curve));
    ExpectNear(Evaluate(curve, 0.0), Evaluate(curve, 6.0));
}

TEST(NurbsCurve, PeriodicCurveIsSmoothWhereItCloses) {
    NurbsCurve curve;
    ASSERT_EQ(MakeNurbsCurve(3, {0, 1, 2, 3, 4}, {{0, 0}, {4, 0}, {4, 4}, {0, 4}}, {1, 2, 1, 3}, true, curve),
              Status::kOk);
    const double step = 1e-5;
    const Point before = Evaluate(curve, 4.0 - step);
    const Point at = Evaluate(curve, 0.0);
    const Point after = Evaluate(curve, step);
    // First derivatives agree, and the second differences are small beside them.
    ExpectNear((1.0 / step) * (at - before), (1.0 / step) * (after - at), 1e-3);
}

TEST(NurbsCurve, PeriodicCurveWithFewerPointsThanItsDegreeRepeatsThemSeveralTimes) {
    NurbsCurve curve;
    ASSERT_EQ(MakeNurbsCurve(5, {0, 1, 2}, {{0, 0}, {2, 2}}, {}, true, curve), Status::kOk);
    EXPECT_EQ(curve.controlPoints.size(), 7U);
    EXPECT_EQ(curve.knots, (std::vector<double>{-5, -4, -3, -2, -1, 0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_TRUE(IsClosed(curve));
}

TEST(NurbsCurve, PeriodicFlagChangesNothingWhenAllKnotsAreGiven) {
    const std::vector<Point> points = {{0, 0}, {1, 2}, {3, 0}, {4, 4}};
    NurbsCurve curve;
    ASSERT_EQ(MakeNurbsCurve(2, ClampedKnots(2, 4), points, {}, true, curve), Status::kOk);
    EXPECT_EQ(curve.controlPoints, points);
    EXPECT_EQ(curve.knots, ClampedKnots(2, 4));
}

TEST(NurbsCurve, PeriodicCurveOfOnePointIsRefused) {
    NurbsCurve curve;
    EXPECT_EQ(MakeNurbsCurve(2, {0, 1}, {{0, 0}}, {}, true, curve), Status::kTooFewPoints);
}

TEST(NurbsCurve, ClosingAClosedCurveChangesNothing) {
    NurbsCurve circle = geometrytests::UnitCircle();
    const NurbsCurve before = circle;
    MakeClosed(circle);
    EXPECT_EQ(circle.controlPoints, before.controlPoints);
    EXPECT_EQ(circle.knots, before.knots);
}

TEST(NurbsCurve, ClosingAnOpenCurveAddsAStraightWayBack) {
    std::mt19937_64 random(3);
    for (int round = 0; round < 200; ++round) {
        const NurbsCurve open = geometrytests::RandomCurve(random);
        NurbsCurve closed = open;
        MakeClosed(closed);
        const Interval before = ParameterInterval(open);
        const Interval after = ParameterInterval(closed);
        ASSERT_TRUE(IsClosed(closed));
        EXPECT_EQ(after.start, before.start);
        if (IsClosed(open)) {
            continue;
        }
        for (int step = 0; step <= 20; ++step) {
            const double parameter = before.start + (before.end - before.start) * step / 20.0;
            ExpectNear(Evaluate(closed, parameter), Evaluate(open, parameter), 1e-9);
            const double beyond = before.end + (after.end - before.end) * step / 20.0;
            ExpectNear(Evaluate(closed, beyond),
                       Between(Evaluate(open, before.end), Evaluate(open, before.start), step / 20.0), 1e-9);
        }
    }
}

} // namespace
