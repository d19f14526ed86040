// Arcs lie where their flags say, and boxes around them are exact.
#include "preview/Outline.h"

#include <gtest/gtest.h>
#include <numbers>
#include <random>

namespace {

using namespace preview;

constexpr double kPi = std::numbers::pi;

TEST(EllipticalArc, AClockwiseHalfCircleFromLeftToRightGoesOverTheTop) {
    const auto arc = CenterOf({-1, 0}, {1, 1, 0, false, true}, {1, 0});
    ASSERT_TRUE(arc);
    EXPECT_NEAR(arc->sweep, -kPi, 1e-12);
    EXPECT_NEAR(arc->At(arc->start + arc->sweep / 2).y, 1.0, 1e-12);
}

TEST(EllipticalArc, ACounterClockwiseHalfCircleFromLeftToRightGoesUnderneath) {
    const auto arc = CenterOf({-1, 0}, {1, 1, 0, false, false}, {1, 0});
    ASSERT_TRUE(arc);
    EXPECT_NEAR(arc->sweep, kPi, 1e-12);
    EXPECT_NEAR(arc->At(arc->start + arc->sweep / 2).y, -1.0, 1e-12);
}

TEST(EllipticalArc, TheFourArcsBetweenTwoPointsAreToldApart) {
    // From (1, 0) to (0, 1) round the origin or round (1, 1).
    const struct {
        bool large;
        bool clockwise;
        Point center;
        double sweep;
    } rows[] = {
        {false, false, {0, 0}, kPi / 2},
        {true, true, {0, 0}, -kPi * 3 / 2},
        {false, true, {1, 1}, -kPi / 2},
        {true, false, {1, 1}, kPi * 3 / 2},
    };
    for (const auto& row : rows) {
        const auto arc = CenterOf({1, 0}, {1, 1, 0, row.large, row.clockwise}, {0, 1});
        ASSERT_TRUE(arc);
        EXPECT_NEAR(arc->center.x, row.center.x, 1e-12);
        EXPECT_NEAR(arc->center.y, row.center.y, 1e-12);
        EXPECT_NEAR(arc->sweep, row.sweep, 1e-12);
    }
}

TEST(EllipticalArc, RadiiThatAreTooSmallGrow) {
    const auto arc = CenterOf({0, 0}, {1, 0.5, 0, false, true}, {4, 0});
    ASSERT_TRUE(arc);
    EXPECT_NEAR(arc->radiusX, 2, 1e-12);
    EXPECT_NEAR(arc->radiusY, 1, 1e-12);
    EXPECT_NEAR(arc->Bounds().high.y, 1, 1e-12);
}

TEST(EllipticalArc, WithoutRadiusOrLengthThereIsNone) {
    EXPECT_FALSE(CenterOf({0, 0}, {0, 1, 0, false, false}, {1, 1}));
    EXPECT_FALSE(CenterOf({0, 0}, {1, 1, 0, false, false}, {0, 0}));
    EXPECT_FALSE(CenterOf({0, 0}, {1e-320, 1, 0, false, false}, {1e300, 1}));
    EXPECT_FALSE(CenterOf({0, 0}, {1, 1, INFINITY, false, false}, {1, 1}));
}

TEST(EllipticalArc, TheBoxOfAQuarterOfATiltedEllipseIsExact) {
    // The whole ellipse of radii 2 and 1 at 30 degrees has half extents sqrt(4 c² + s²) and sqrt(4 s² + c²).
    const double c = std::cos(kPi / 6);
    const double s = std::sin(kPi / 6);
    const Point start{2 * c, 2 * s};
    const Point opposite{-2 * c, -2 * s};
    Outline outline;
    outline.MoveTo(start);
    outline.ArcTo({2, 1, 30, false, true}, opposite);
    outline.ArcTo({2, 1, 30, false, true}, start);
    EXPECT_NEAR(outline.Bounds().high.x, std::sqrt(4 * c * c + s * s), 1e-12);
    EXPECT_NEAR(outline.Bounds().low.x, -std::sqrt(4 * c * c + s * s), 1e-12);
    EXPECT_NEAR(outline.Bounds().high.y, std::sqrt(4 * s * s + c * c), 1e-12);
    EXPECT_NEAR(outline.Bounds().low.y, -std::sqrt(4 * s * s + c * c), 1e-12);
}

struct RandomArc {
    Point from;
    ArcShape shape;
    Point to;
};

RandomArc MakeArc(std::mt19937& random) {
    std::uniform_real_distribution<double> coordinate(-10, 10);
    std::uniform_real_distribution<double> radius(0.1, 12);
    std::uniform_real_distribution<double> angle(-400, 400);
    return {{coordinate(random), coordinate(random)},
            {radius(random), radius(random), angle(random), random() % 2 == 0, random() % 2 == 0},
            {coordinate(random), coordinate(random)}};
}

TEST(EllipticalArc, RunsFromStartToEndInItsSenseAndTouchesItsBox) {
    std::mt19937 random(8);
    for (int i = 0; i < 5'000; ++i) {
        const RandomArc row = MakeArc(random);
        const auto arc = CenterOf(row.from, row.shape, row.to);
        ASSERT_TRUE(arc);
        EXPECT_NEAR(Length(arc->At(arc->start) - row.from), 0, 1e-9);
        EXPECT_NEAR(Length(arc->At(arc->start + arc->sweep) - row.to), 0, 1e-9);
        EXPECT_EQ(arc->sweep < 0, row.shape.clockwise);
        if (arc->radiusX == row.shape.radiusX) { // not grown: two centres were to choose from
            EXPECT_EQ(std::fabs(arc->sweep) > kPi, row.shape.largeArc);
        }
        const Box box = arc->Bounds();
        Box seen;
        constexpr int kSamples = 2'000;
        for (int k = 0; k <= kSamples; ++k) {
            seen.Include(arc->At(arc->start + arc->sweep * k / kSamples));
        }
        // Between two samples the arc rises by r (1 - cos of half the step) at most.
        const double sampling = 2e-6 * std::max(arc->radiusX, arc->radiusY);
        EXPECT_NEAR(box.low.x, seen.low.x, sampling);
        EXPECT_NEAR(box.low.y, seen.low.y, sampling);
        EXPECT_NEAR(box.high.x, seen.high.x, sampling);
        EXPECT_NEAR(box.high.y, seen.high.y, sampling);
    }
}

TEST(Outline, CurvesStayOnTheCircleTheyStandFor) {
    Outline outline;
    outline.MoveTo({1, 0});
    outline.ArcTo({1, 1, 0, true, false}, {0, -1});
    double farthest = 0;
    ForEachPiece(
        outline, [](Point, Point, bool) { ADD_FAILURE() << "an arc is no line"; },
        [&](Point a, Point b, Point c, Point d, bool) {
            for (int hundredth = 0; hundredth <= 100; ++hundredth) {
                const double t = hundredth / 100.0;
                const double u = 1 - t;
                const Point at =
                    a * (u * u * u) + b * (3 * u * u * t) + c * (3 * u * t * t) + d * (t * t * t);
                farthest = std::max(farthest, std::fabs(Length(at) - 1));
            }
        });
    EXPECT_GT(farthest, 0);
    EXPECT_LT(farthest, 3e-5);
}

TEST(Outline, KnowsWhetherItLiesOnTheAxis) {
    const struct {
        const wchar_t* path;
        bool onAxis;
    } rows[] = {
        {L"M 0,0 L 0.5,0 M 0.75,0 L 0.75,0 ", true},
        {L"M 0,0 L 0.5,0.1 ", false},
        {L"M 0,0 A 1,1 0 0 1 2,0 ", false},
        {L"M 0,5 M 0,0 h 1", true}, // a move alone draws nothing
    };
    for (const auto& row : rows) {
        Outline outline;
        ASSERT_TRUE(ReadPath(row.path, outline).complete);
        EXPECT_EQ(outline.IsOnAxis(), row.onAxis) << row.path;
    }
}

} // namespace
