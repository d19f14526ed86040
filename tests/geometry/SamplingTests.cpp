// Samples of curves: how near, how many, and that the search ends.
#include "drawing/geometry/BoundingBox.h"
#include "drawing/geometry/Limits.h"
#include "drawing/geometry/Sampling.h"
#include "tests/geometry/CurveSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace {

using namespace geometry;
using geometrytests::ClampedKnots;
using geometrytests::MakeCurve;

double Extent(const NurbsCurve& curve) {
    const geometry::Box box = BoundingBox(curve);
    return std::max(box.maximum.x - box.minimum.x, box.maximum.y - box.minimum.y);
}

std::vector<CurveSample> SampleAll(const NurbsCurve& curve, double tolerance) {
    const Interval interval = geometry::ParameterInterval(curve);
    std::vector<CurveSample> samples;
    SamplePoints(curve, interval.start, interval.end, tolerance, samples);
    return samples;
}

/// Parameters from one value to another, dense near both ends too, where curves with uneven knots or weights
/// do their travelling.
std::vector<double> DenseParameters(double from, double to, int count) {
    std::vector<double> parameters;
    for (int step = 0; step <= count; ++step) {
        parameters.push_back(from + (to - from) * step / count);
    }
    double part = 0.5;
    while (part > 1e-12) {
        parameters.push_back(from + (to - from) * part);
        parameters.push_back(to - (to - from) * part);
        part *= 0.7;
    }
    return parameters;
}

void ExpectWithin(const NurbsCurve& curve, const std::vector<CurveSample>& samples, double tolerance,
                  const std::string& name) {
    ASSERT_GE(samples.size(), 2U) << name;
    double furthest = 0.0;
    for (std::size_t index = 1; index < samples.size(); ++index) {
        ASSERT_LT(samples[index - 1].parameter, samples[index].parameter) << name;
        for (const double parameter :
             DenseParameters(samples[index - 1].parameter, samples[index].parameter, 60)) {
            furthest = std::max(furthest, geometrytests::DistanceToSegment(Evaluate(curve, parameter),
                                                                           samples[index - 1].point,
                                                                           samples[index].point));
        }
    }
    EXPECT_LE(furthest, tolerance) << name;
    for (const CurveSample& sample : samples) {
        const Point there = Evaluate(curve, sample.parameter);
        EXPECT_LE(Distance(sample.point, there), 1e-3 * tolerance) << name;
    }
}

/// The fewest samples with which every piece stays within the tolerance of its chord, when samples may only
/// stand on a fine grid: by dynamic programming over the grid.
std::size_t FewestSamples(const NurbsCurve& curve, double tolerance, std::size_t gridPerSpan) {
    std::vector<Point> points;
    for (std::size_t knot = 0; knot + 1 < curve.knots.size(); ++knot) {
        const Interval interval = geometry::ParameterInterval(curve);
        const double from = curve.knots[knot];
        const double to = curve.knots[knot + 1];
        if (from >= to || from < interval.start || to > interval.end) {
            continue;
        }
        for (std::size_t step = points.empty() ? 0 : 1; step <= gridPerSpan; ++step) {
            const double part = static_cast<double>(step) / static_cast<double>(gridPerSpan);
            points.push_back(Evaluate(curve, step == gridPerSpan ? to : from + (to - from) * part));
        }
    }
    std::vector<std::size_t> fewest(points.size(), points.size());
    fewest[0] = 1;
    for (std::size_t from = 0; from + 1 < points.size(); ++from) {
        for (std::size_t to = from + 1; to < points.size(); ++to) {
            if (fewest[to] <= fewest[from] + 1) {
                continue;
            }
            double furthest = 0.0;
            for (std::size_t between = from + 1; between < to && furthest <= tolerance; ++between) {
                furthest = std::max(
                    furthest, geometrytests::DistanceToSegment(points[between], points[from], points[to]));
            }
            if (furthest <= tolerance) {
                fewest[to] = fewest[from] + 1;
            }
        }
    }
    return fewest.back();
}

TEST(Sampling, DifficultCurvesStayWithinTheTolerance) {
    for (const geometrytests::NamedCurve& named : geometrytests::DifficultCurves()) {
        const double extent = std::max(Extent(named.curve), 1.0);
        for (const double part : {0.1, 0.01, 0.001, 1e-4, 1e-6}) {
            ExpectWithin(named.curve, SampleAll(named.curve, part * extent), part * extent,
                         named.name + " at " + std::to_string(part));
        }
    }
}

TEST(Sampling, RandomCurvesStayWithinTheTolerance) {
    std::mt19937_64 random(8);
    for (int round = 0; round < 60; ++round) {
        const NurbsCurve curve = geometrytests::RandomCurve(random);
        const double tolerance = std::pow(10.0, geometrytests::RandomBetween(random, -4, 0.5));
        ExpectWithin(curve, SampleAll(curve, tolerance), tolerance, "round " + std::to_string(round));
    }
}

TEST(Sampling, DifficultCurvesNeedLessThanTwiceTheFewestSamples) {
    for (const geometrytests::NamedCurve& named : geometrytests::DifficultCurves()) {
        const double extent = std::max(Extent(named.curve), 1.0);
        for (const double part : {0.2, 0.05, 0.01, 0.002}) {
            const std::size_t samples = SampleAll(named.curve, part * extent).size();
            const std::size_t spans =
                named.curve.knots.size() - 2U * static_cast<std::size_t>(named.curve.degree);
            const std::size_t fewest = FewestSamples(named.curve, part * extent, 600 / spans);
            EXPECT_LE(samples, 2 * fewest) << named.name << " at " << part;
        }
    }
}

TEST(Sampling, RandomCurvesNeedLessThanTwiceTheFewestSamples) {
    std::mt19937_64 random(9);
    for (int round = 0; round < 60; ++round) {
        const NurbsCurve curve = geometrytests::RandomCurve(random);
        const double tolerance = std::pow(10.0, geometrytests::RandomBetween(random, -2, 0.7));
        const std::size_t spans = curve.knots.size() - 2U * static_cast<std::size_t>(curve.degree);
        EXPECT_LE(SampleAll(curve, tolerance).size(), 2 * FewestSamples(curve, tolerance, 500 / spans))
            << "round " << round;
    }
}

TEST(Sampling, CircleTakesAboutTheNumberOfChordsThatItsSagittaAllows) {
    // A chord over the angle a stays within 1 - cos (a / 2) of the unit circle.
    for (const double tolerance : {0.1, 0.01, 1e-3, 1e-5, 1e-7}) {
        const double chords = std::ceil(std::numbers::pi / std::acos(1.0 - tolerance));
        const auto samples = static_cast<double>(SampleAll(geometrytests::UnitCircle(), tolerance).size());
        EXPECT_GE(samples, chords + 1.0);
        EXPECT_LE(samples, 1.15 * chords + 2.0);
    }
}

TEST(Sampling, CornersOfAPolylineAreSampledExactly) {
    const std::vector<Point> corners = {{0, 0}, {1, 5}, {2, 0}, {3.3, 5}, {4, 0}};
    const std::vector<CurveSample> samples = SampleAll(MakeCurve(1, ClampedKnots(1, 5), corners), 0.01);
    ASSERT_EQ(samples.size(), corners.size());
    for (std::size_t index = 0; index < corners.size(); ++index) {
        EXPECT_EQ(samples[index].point, corners[index]);
        EXPECT_EQ(samples[index].parameter, static_cast<double>(index));
    }
}

TEST(Sampling, StraightCurveNeedsItsTwoEnds) {
    const std::vector<CurveSample> samples =
        SampleAll(MakeCurve(3, ClampedKnots(3, 6), {{0, 0}, {1, 1}, {2, 2}, {5, 5}, {6, 6}, {7, 7}}), 1e-9);
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(samples[0].point, (Point{0, 0}));
    EXPECT_EQ(samples[1].point, (Point{7, 7}));
}

TEST(Sampling, TeethFinerThanTheToleranceAreSkipped) {
    std::vector<Point> points(5000);
    for (std::size_t index = 0; index < points.size(); ++index) {
        points[index] = {0.01 * static_cast<double>(index), index % 2 == 0 ? 0.0 : 0.001};
    }
    EXPECT_EQ(SampleAll(MakeCurve(1, ClampedKnots(1, points.size()), points), 0.01).size(), 2U);
}

TEST(Sampling, CurveThatStandsStillGivesTwoSamples) {
    const std::vector<CurveSample> samples =
        SampleAll(MakeCurve(2, ClampedKnots(2, 4), std::vector<Point>(4, {0.1, 0.7})), 0.001);
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(samples[0].point, (Point{0.1, 0.7}));
    EXPECT_EQ(samples[1].point, (Point{0.1, 0.7}));
    EXPECT_EQ(samples[0].parameter, 0.0);
    EXPECT_EQ(samples[1].parameter, 2.0);
}

TEST(Sampling, PartOfACurveStartsAndEndsWhereAsked) {
    const NurbsCurve circle = geometrytests::UnitCircle();
    std::vector<CurveSample> samples;
    EXPECT_EQ(SamplePoints(circle, 0.5, 2.75, 0.001, samples), 0.001);
    EXPECT_EQ(samples.front().parameter, 0.5);
    EXPECT_EQ(samples.back().parameter, 2.75);
    ExpectWithin(circle, samples, 0.001, "part");
}

TEST(Sampling, EndsOutsideTheIntervalAreBroughtIntoIt) {
    const NurbsCurve circle = geometrytests::UnitCircle();
    const double infinity = std::numeric_limits<double>::infinity();
    std::vector<CurveSample> samples;
    SamplePoints(circle, -infinity, infinity, 0.001, samples);
    EXPECT_EQ(samples.front().parameter, 0.0);
    EXPECT_EQ(samples.back().parameter, 4.0);
}

TEST(Sampling, EmptyAndMeaninglessRanges) {
    const NurbsCurve circle = geometrytests::UnitCircle();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    std::vector<CurveSample> samples;
    SamplePoints(circle, 1.5, 1.5, 0.001, samples);
    EXPECT_EQ(samples.size(), 1U);
    SamplePoints(circle, 2.0, 1.0, 0.001, samples);
    EXPECT_TRUE(samples.empty());
    SamplePoints(circle, nan, 1.0, 0.001, samples);
    EXPECT_TRUE(samples.empty());
    SamplePoints(circle, 0.0, nan, 0.001, samples);
    EXPECT_TRUE(samples.empty());
}

TEST(Sampling, TolerancesBelowRoundingAreRaisedAndTheSamplesLimited) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double tolerance : {0.0, nan}) {
        const NurbsCurve circle = geometrytests::UnitCircle();
        std::vector<CurveSample> samples;
        const double held = SamplePoints(circle, 0.0, 4.0, tolerance, samples);
        EXPECT_GT(held, 0.0);
        EXPECT_LT(held, 1e-7);
        EXPECT_LE(samples.size(), geometry::kSamplesPerCurve + 4 * geometry::kSamplesPerPiece);
        EXPECT_GT(samples.size(), 1000U);
    }
}

TEST(Sampling, InfiniteToleranceLeavesTheTwoEnds) {
    EXPECT_EQ(SampleAll(geometrytests::UnitCircle(), std::numeric_limits<double>::infinity()).size(), 2U);
}

TEST(Sampling, HugeCoordinatesEnd) {
    const NurbsCurve curve =
        MakeCurve(3, ClampedKnots(3, 6),
                  {{-1e100, 1e100}, {1e100, 1e100}, {-1e100, -1e100}, {0, 1e100}, {3, 4}, {1e100, 0}});
    for (const double tolerance : {1.0, 1e90, 1e97}) {
        const std::vector<CurveSample> samples = SampleAll(curve, tolerance);
        EXPECT_GE(samples.size(), 3U);
        for (const CurveSample& sample : samples) {
            EXPECT_TRUE(IsFinite(sample.point));
        }
    }
    ExpectWithin(curve, SampleAll(curve, 1e97), 1e97, "huge");
}

TEST(Sampling, ManyCornersAreAllAllowed) {
    std::vector<Point> points(100000);
    for (std::size_t index = 0; index < points.size(); ++index) {
        points[index] = {0.5 * static_cast<double>(index), index % 2 == 0 ? 0.0 : 100.0};
    }
    EXPECT_EQ(SampleAll(MakeCurve(1, ClampedKnots(1, points.size()), points), 0.001).size(), points.size());
}

} // namespace
