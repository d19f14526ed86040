// Segments, arcs and B-splines of the plane, as the interface has them.
#include "OxDb/OxDb.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

using std::numbers::pi;

void ExpectNear(const OxGePoint2d& point, double x, double y) {
    EXPECT_NEAR(point.x, x, 1e-12);
    EXPECT_NEAR(point.y, y, 1e-12);
}

void ExpectBox(const OxGeCurve2d& curve, OxGePoint2d lower, OxGePoint2d upper) {
    OxGePoint2d minimum;
    OxGePoint2d maximum;
    curve.boundBlock().getMinMaxPoints(minimum, maximum);
    ExpectNear(minimum, lower.x, lower.y);
    ExpectNear(maximum, upper.x, upper.y);
}

TEST(PlanePoints, AreEqualUpToTheTolerance) {
    const OxGePoint2d origin;
    EXPECT_TRUE(origin.isEqualTo({1e-10, 0}));
    EXPECT_FALSE(origin.isEqualTo({1.1e-10, 0}));
    EXPECT_FALSE(origin.isEqualTo({0.8e-10, 0.8e-10})); // the distance counts, not the coordinates
    EXPECT_TRUE(origin.isEqualTo({0.3, 0.4}, OxGeTol(0.5, 0.5)));
    EXPECT_FALSE(origin.isEqualTo({std::nan(""), 0}));
    EXPECT_EQ((OxGePoint2d{1, 1}.distanceTo({4, 5})), 5.0);
    EXPECT_EQ((OxGeVector3d{2, 3, 6}.length()), 7.0);
}

TEST(PlaneArcs, AClockwiseAngleIsMeasuredInTheDirectionOfTravel) {
    const OxGeCircArc2d arc({1, 2}, 2.0, 0.0, pi / 2, true);
    ExpectNear(arc.startPoint(), 3, 2);
    ExpectNear(arc.endPoint(), 1, 0);
    const OxGeCircArc2d counter({1, 2}, 2.0, 0.0, pi / 2, false);
    ExpectNear(counter.endPoint(), 1, 4);
    const OxGeEllipArc2d ellipse({0, 0}, {0, 2}, 0.5, 0.0, pi / 2, true);
    ExpectNear(ellipse.startPoint(), 0, 2);
    ExpectNear(ellipse.endPoint(), 1, 0); // right of the major axis
    EXPECT_EQ(ellipse.majorRadius(), 2.0);
    EXPECT_EQ(ellipse.minorRadius(), 1.0);
}

TEST(PlaneArcs, AreClosedAWholeTurnApart) {
    EXPECT_TRUE(OxGeCircArc2d({}, 1.0, 0.0, 2 * pi, false).isClosed());
    EXPECT_TRUE(OxGeCircArc2d({}, 1.0, 1.0, 1.0 + 2 * pi + 0.9e-9, true).isClosed());
    EXPECT_FALSE(OxGeCircArc2d({}, 1.0, 0.0, 2 * pi + 1.1e-9, false).isClosed());
    EXPECT_FALSE(OxGeCircArc2d({}, 1.0, 0.0, pi, false).isClosed());
    EXPECT_TRUE(OxGeEllipArc2d({}, {1, 0}, 0.5, 0.0, 2 * pi, false).isClosed());
    EXPECT_FALSE(OxGeLineSeg2d({0, 0}, {1, 0}).isClosed());
}

TEST(PlaneCurves, KindsRespectDerivation) {
    const OxGeCircArc2d arc;
    EXPECT_TRUE(arc.isKindOf(OxGe::kCircArc2d));
    EXPECT_TRUE(arc.isKindOf(OxGe::kCurve2d));
    EXPECT_TRUE(arc.isKindOf(OxGe::kEntity2d));
    EXPECT_FALSE(arc.isKindOf(OxGe::kEllipArc2d));
}

TEST(PlaneCurves, BoxesHoldTheCurveAndNoMore) {
    ExpectBox(OxGeLineSeg2d({3, 1}, {1, 2}), {1, 1}, {3, 2});
    ExpectBox(OxGeCircArc2d({0, 0}, 1.0, pi / 4, 3 * pi / 4, false), {-std::sqrt(0.5), std::sqrt(0.5)},
              {std::sqrt(0.5), 1});
    ExpectBox(OxGeCircArc2d({0, 0}, 1.0, pi / 4, 3 * pi / 4, true), {-std::sqrt(0.5), -1},
              {std::sqrt(0.5), -std::sqrt(0.5)});
    ExpectBox(OxGeCircArc2d({1, 1}, 2.0, 1.5 * pi, 0.5 * pi, false), {1, -1}, {3, 3});
    ExpectBox(OxGeEllipArc2d({0, 0}, {2, 0}, 0.5, 0.0, 2 * pi, false), {-2, -1}, {2, 1});
}

TEST(PlaneCurves, SamplesKeepTheTolerance) {
    const OxGeCircArc2d arc({0, 0}, 10.0, 0.0, pi, true);
    OxGePoint2dArray points;
    OxGeDoubleArray parameters;
    points.append({7, 7});
    arc.getSamplePoints(0.0, pi, 0.01, points, parameters);
    ASSERT_EQ(points.length(), parameters.length());
    ASSERT_GT(points.length(), 2);
    ExpectNear(points[0], 10, 0);
    ExpectNear(points[points.length() - 1], -10, 0);
    for (int index = 1; index < points.length(); ++index) {
        const double half = (parameters[index] - parameters[index - 1]) / 2;
        EXPECT_LE(10.0 * (1 - std::cos(half)), 0.01 + 1e-12);
    }
    OxGeLineSeg2d({0, 0}, {2, 4}).getSamplePoints(0.0, 0.5, 0.1, points, parameters);
    ASSERT_EQ(points.length(), 2);
    EXPECT_EQ(points[1], (OxGePoint2d{1, 2}));
}

OxGePoint2dArray Points(std::initializer_list<OxGePoint2d> list) {
    OxGePoint2dArray points;
    for (const OxGePoint2d& point : list) {
        points.append(point);
    }
    return points;
}

OxGeKnotVector Knots(std::initializer_list<double> list) {
    return {static_cast<int>(list.size()), list.begin()};
}

TEST(PlaneSplines, ARationalCurveIsAnExactCircle) {
    OxGeDoubleArray weights;
    for (const double weight : {1.0, std::sqrt(0.5), 1.0}) {
        weights.append(weight);
    }
    const OxGeNurbCurve2d curve(2, Knots({0, 0, 0, 1, 1, 1}), Points({{1, 0}, {1, 1}, {0, 1}}), weights);
    ASSERT_TRUE(curve.isDefined());
    OxGePoint2dArray points;
    OxGeDoubleArray parameters;
    curve.getSamplePoints(0.0, 1.0, 0.001, points, parameters);
    ASSERT_GT(points.length(), 3);
    for (const OxGePoint2d& point : points) {
        EXPECT_NEAR(point.distanceTo({0, 0}), 1.0, 1e-14);
    }
    ExpectBox(curve, {0, 0}, {1, 1});
}

TEST(PlaneSplines, WithoutWeightsItIsAnotherCurve) {
    const OxGeNurbCurve2d curve(2, Knots({0, 0, 0, 1, 1, 1}), Points({{0, 0}, {1, 2}, {2, 0}}));
    ExpectBox(curve, {0, 0}, {2, 1}); // a parabola
    OxGeInterval interval(1e-12);
    curve.getInterval(interval);
    EXPECT_EQ(interval.lowerBound(), 0.0);
    EXPECT_EQ(interval.upperBound(), 1.0);
    EXPECT_EQ(interval.tolerance(), 1e-12);
    EXPECT_FALSE(curve.isClosed());
}

TEST(PlaneSplines, FitPointsArePassedAndTangentsHonoured) {
    const OxGePoint2dArray fitPoints = Points({{0, 0}, {1, 1}, {2, 0}});
    const OxGeNurbCurve2d free(fitPoints);
    const OxGeNurbCurve2d tangent(fitPoints, {0, 1}, {0, -1});
    const OxGeNurbCurve2d half(fitPoints, {0, 1}, {0, -1}, true, false);
    OxGePoint2dArray points;
    OxGeDoubleArray parameters;
    for (const OxGeNurbCurve2d* const curve : {&free, &tangent, &half}) {
        ASSERT_TRUE(curve->isDefined());
        curve->getSamplePoints(std::sqrt(2.0), std::sqrt(2.0), 1e-6, points, parameters);
        ASSERT_EQ(points.length(), 1);
        ExpectNear(points[0], 1, 1);
    }
    const auto startDirection = [&](const OxGeNurbCurve2d& curve) {
        curve.getSamplePoints(1e-7, 1e-7, 1e-6, points, parameters);
        return std::atan2(points[0].y, points[0].x);
    };
    EXPECT_NEAR(startDirection(tangent), pi / 2, 1e-5);
    EXPECT_NEAR(startDirection(half), pi / 2, 1e-5);
    EXPECT_LT(startDirection(free), 1.3);
    tangent.getSamplePoints(2 * std::sqrt(2.0) - 1e-7, 2 * std::sqrt(2.0) - 1e-7, 1e-6, points, parameters);
    EXPECT_NEAR(std::atan2(points[0].y, points[0].x - 2), pi / 2, 1e-5);
    half.getSamplePoints(2 * std::sqrt(2.0) - 1e-7, 2 * std::sqrt(2.0) - 1e-7, 1e-6, points, parameters);
    EXPECT_GT(std::atan2(points[0].y, points[0].x - 2), pi / 2 + 0.2);
}

TEST(PlaneSplines, MakeClosedComesBackToTheStart) {
    OxGeNurbCurve2d curve(1, Knots({0, 0, 1, 2, 2}), Points({{0, 0}, {1, 0}, {1, 1}}));
    EXPECT_FALSE(curve.isClosed());
    curve.makeClosed();
    EXPECT_TRUE(curve.isClosed());
    OxGeInterval interval;
    curve.getInterval(interval);
    OxGePoint2dArray points;
    OxGeDoubleArray parameters;
    curve.getSamplePoints(interval.lowerBound(), interval.upperBound(), 0.001, points, parameters);
    ExpectNear(points[points.length() - 1], 0, 0);
    ExpectBox(curve, {0, 0}, {1, 1});
}

TEST(PlaneSplines, APeriodicCurveMayGiveOnePeriodOfKnots) {
    const OxGeNurbCurve2d curve(2, Knots({0, 1, 2, 3, 4}), Points({{0, 0}, {2, 0}, {2, 2}, {0, 2}}), true);
    ASSERT_TRUE(curve.isDefined());
    EXPECT_TRUE(curve.isClosed());
}

TEST(PlaneSplines, DataThatMakesNoCurveLeavesItUndefined) {
    const OxGePoint2dArray two = Points({{0, 0}, {1, 1}});
    OxGeDoubleArray oneWeight;
    oneWeight.append(1.0);
    const OxGeNurbCurve2d fewPoints(3, Knots({0, 0, 0, 1, 1, 1}), two);
    const OxGeNurbCurve2d fewKnots(1, Knots({0, 1}), two);
    const OxGeNurbCurve2d fewWeights(1, Knots({0, 0, 1, 1}), two, oneWeight);
    const OxGeNurbCurve2d notFinite(1, Knots({0, 0, 1, 1}), Points({{0, 0}, {INFINITY, 0}}));
    const OxGeNurbCurve2d falling(1, Knots({0, 1, 0, 1}), two);
    const OxGeNurbCurve2d noFitPoints{OxGePoint2dArray()};
    for (const OxGeNurbCurve2d* const curve :
         {&fewPoints, &fewKnots, &fewWeights, &notFinite, &falling, &noFitPoints}) {
        EXPECT_FALSE(curve->isDefined());
        EXPECT_FALSE(curve->isClosed());
        OxGeInterval interval(1.0, 2.0);
        curve->getInterval(interval);
        EXPECT_EQ(interval.length(), 0.0);
        OxGePoint2dArray points = two;
        OxGeDoubleArray parameters;
        curve->getSamplePoints(0.0, 1.0, 0.1, points, parameters);
        EXPECT_TRUE(points.isEmpty());
        ExpectBox(*curve, {0, 0}, {0, 0});
    }
}

TEST(Arrays, GrowByTheirGrowLengthAndThenFaster) {
    OxArray<int> array;
    EXPECT_EQ(array.growLength(), 8);
    EXPECT_TRUE(array.isEmpty());
    array.append(1);
    EXPECT_EQ(array.physicalLength(), 8);
    for (int value = 2; value <= 9; ++value) {
        EXPECT_EQ(array.append(value), value - 1);
    }
    EXPECT_EQ(array.physicalLength(), 16);
    EXPECT_EQ(array.logicalLength(), 9);
    EXPECT_EQ(array[8], 9);
    array.setLogicalLength(2);
    EXPECT_EQ(array.length(), 2);
    int grown = 0;
    for (int value = 0, capacity = array.physicalLength(); value < 1000000; ++value) {
        array.append(value);
        grown += array.physicalLength() != capacity ? 1 : 0;
        capacity = array.physicalLength();
    }
    EXPECT_LT(grown, 50); // linear in all
    array.removeAll();
    EXPECT_TRUE(array.isEmpty());
}

} // namespace
