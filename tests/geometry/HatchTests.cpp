// Hatch lines of small areas, worked out by hand.
#include "drawing/geometry/Hatch.h"
#include "drawing/geometry/Interpolation.h"
#include "tests/geometry/CurveSamples.h"
#include "tests/geometry/HatchSamples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using namespace geometry;
using geometrytests::ClampedKnots;
using geometrytests::ExpectLines;
using geometrytests::Lines;
using geometrytests::MakeCurve;
using geometrytests::Polygon;
using geometrytests::Rectangle;

constexpr double kPi = std::numbers::pi;

HatchFamily Level(double spacing) {
    return {0.0, {0, 0}, {0, spacing}, {}};
}

HatchLine LevelLine(double y, double from, double to) {
    return {{from, y}, {to, y}};
}

TEST(Hatch, LinesOfASquareFromTheLowestUp) {
    const std::vector<HatchLine> expected = {LevelLine(0, 0, 10), LevelLine(2.5, 0, 10), LevelLine(5, 0, 10),
                                             LevelLine(7.5, 0, 10)};
    ExpectLines(Lines({Rectangle(0, 0, 10, 10)}, {Level(2.5)}), expected, 0.0);
}

TEST(Hatch, OffsetDownwardGivesTheSameLinesInTheSameOrder) {
    ExpectLines(Lines({Rectangle(0, 0, 10, 10)}, {Level(-2.5)}),
                Lines({Rectangle(0, 0, 10, 10)}, {Level(2.5)}), 0.0);
}

TEST(Hatch, UprightLinesRunUpwardAndComeFromRightToLeft) {
    // The normal of lines at 90 degrees points to -x.
    const std::vector<HatchLine> expected = {
        {{10, 0}, {10, 10}}, {{7.5, 0}, {7.5, 10}}, {{5, 0}, {5, 10}}, {{2.5, 0}, {2.5, 10}}};
    ExpectLines(Lines({Rectangle(0, 0, 10, 10)}, {{kPi / 2, {0, 0}, {2.5, 0}, {}}}), expected, 0.0);
}

TEST(Hatch, LinesAtTheHalfTurnRunBackwardAndComeFromTheTop) {
    const std::vector<HatchLine> expected = {LevelLine(10, 10, 0), LevelLine(5, 10, 0)};
    ExpectLines(Lines({Rectangle(0, 0, 10, 10)}, {{kPi, {0, 0}, {0, 5}, {}}}), expected, 0.0);
}

TEST(Hatch, SlantedLinesThroughCorners) {
    const std::vector<HatchLine> expected = {{{1, 0}, {2, 1}}, {{0, 0}, {2, 2}}, {{0, 1}, {1, 2}}};
    ExpectLines(Lines({Rectangle(0, 0, 2, 2)}, {{kPi / 4, {0, 0}, {-0.5, 0.5}, {}}}), expected);
}

TEST(Hatch, OffsetAlongTheLineDoesNotMoveSolidLines) {
    ExpectLines(Lines({Rectangle(0, 0, 10, 10)}, {{0.0, {3, 0}, {77.25, 2.5}, {}}}),
                Lines({Rectangle(0, 0, 10, 10)}, {Level(2.5)}));
}

TEST(Hatch, BaseFarOutsideStillPlacesTheLines) {
    const std::vector<HatchLine> expected = {LevelLine(0.5, 0, 10), LevelLine(5.5, 0, 10)};
    ExpectLines(Lines({Rectangle(0, 0, 10, 10)}, {{0.0, {-5000, 5000.5}, {0, 5}, {}}}), expected);
}

TEST(Hatch, BaseImmenselyFarAlongTheLineDoesNotMatterToSolidLines) {
    const std::vector<HatchLine> expected = {LevelLine(0, 0, 10), LevelLine(5, 0, 10)};
    ExpectLines(Lines({Rectangle(0, 0, 10, 10)}, {{0.0, {1e30, 0}, {0, 5}, {}}}), expected, 0.0);
}

TEST(Hatch, FamiliesComeInTheirOrder) {
    const std::vector<HatchLine> expected = {{{5, 0}, {5, 10}}, LevelLine(2, 0, 10), LevelLine(6, 0, 10)};
    ExpectLines(Lines({Rectangle(0, 0, 10, 10)}, {{kPi / 2, {5, 0}, {20, 0}, {}}, {0.0, {0, 2}, {0, 4}, {}}}),
                expected, 0.0);
}

TEST(Hatch, IslandInterruptsTheLines) {
    const std::vector<HatchLine> expected = {LevelLine(1, 0, 10), LevelLine(5, 0, 4), LevelLine(5, 6, 10),
                                             LevelLine(9, 0, 10)};
    ExpectLines(Lines({Rectangle(0, 0, 10, 10), Rectangle(4, 4, 6, 6)}, {{0.0, {0, 1}, {0, 4}, {}}}),
                expected, 0.0);
}

TEST(Hatch, IslandInAnIslandIsHatchedAgain) {
    const std::vector<HatchLine> expected = {LevelLine(5, 0, 2), LevelLine(5, 4, 6), LevelLine(5, 8, 10)};
    ExpectLines(Lines({Rectangle(0, 0, 10, 10), Rectangle(2, 2, 8, 8), Rectangle(4, 4, 6, 6)},
                      {{0.0, {0, 5}, {0, 100}, {}}}),
                expected, 0.0);
}

TEST(Hatch, OverlapOfTwoLoopsIsOutside) {
    const std::vector<HatchLine> expected = {LevelLine(1, 0, 4), LevelLine(1, 6, 10)};
    ExpectLines(Lines({Rectangle(0, 0, 6, 2), Rectangle(4, 0, 10, 2)}, {{0.0, {0, 1}, {0, 9}, {}}}), expected,
                0.0);
}

TEST(Hatch, LoopsThatLieOnEachOtherCancel) {
    EXPECT_TRUE(Lines({Rectangle(0, 0, 6, 2), Rectangle(0, 0, 6, 2)}, {Level(0.5)}).empty());
}

TEST(Hatch, LineIsNotCutWhereTwoLoopsShareAnEdge) {
    const std::vector<HatchLine> expected = {LevelLine(1, 0, 10)};
    ExpectLines(Lines({Rectangle(0, 0, 6, 2), Rectangle(6, 0, 10, 2)}, {{0.0, {0, 1}, {0, 9}, {}}}), expected,
                0.0);
    // The shared edge slants, and is divided differently on its two sides.
    const std::vector<HatchLine> slanted = Lines(
        {Polygon({{0, 0}, {7, 0}, {4, 3}, {0, 3}}), Polygon({{7, 0}, {10, 0}, {10, 3}, {4, 3}, {5.9, 1.1}})},
        {{0.0, {0, 1.7}, {0, 9}, {}}});
    ExpectLines(slanted, {LevelLine(1.7, 0, 10)});
}

TEST(Hatch, CornerThatOnlyTouchesALineDrawsNothing) {
    const std::vector<HatchLine> expected = {LevelLine(5, 0, 10)};
    ExpectLines(Lines({Polygon({{5, 0}, {10, 5}, {5, 10}, {0, 5}})}, {Level(5)}), expected, 0.0);
}

TEST(Hatch, NotchThatReachesDownToALineDoesNotCutIt) {
    const std::vector<HatchLine> expected = {LevelLine(0, 0, 10), LevelLine(5, 0, 10)};
    ExpectLines(Lines({Polygon({{0, 0}, {10, 0}, {10, 10}, {5, 5}, {0, 10}})}, {Level(5)}), expected, 0.0);
}

TEST(Hatch, NotchThatReachesUpToALineDoesNotCutIt) {
    const std::vector<HatchLine> expected = {LevelLine(5, 0, 10)};
    ExpectLines(Lines({Polygon({{0, 1}, {5, 5}, {10, 1}, {10, 10}, {0, 10}})}, {Level(5)}), expected, 0.0);
}

TEST(Hatch, EdgeOnALineIsDrawnWhenTheAreaIsAboveIt) {
    const std::vector<HatchLine> below = {LevelLine(0, 0, 10), LevelLine(5, 0, 5)};
    ExpectLines(Lines({Polygon({{0, 0}, {10, 0}, {10, 5}, {5, 5}, {5, 10}, {0, 10}})}, {Level(5)}), below,
                0.0);
    const std::vector<HatchLine> above = {LevelLine(0, 0, 5), LevelLine(5, 0, 10)};
    ExpectLines(Lines({Polygon({{0, 0}, {5, 0}, {5, 5}, {10, 5}, {10, 10}, {0, 10}})}, {Level(5)}), above,
                0.0);
}

TEST(Hatch, CircleIsCutExactly) {
    const std::vector<HatchLine> expected = {LevelLine(-3, -4, 4), LevelLine(0, -5, 5), LevelLine(3, -4, 4)};
    for (const double start : {0.0, 1.0, -9.0, 100.0}) {
        for (const bool clockwise : {false, true}) {
            const OxGeCircArc2d circle{{0, 0}, 5, start, start + 2 * kPi, clockwise};
            ExpectLines(Lines({HatchLoop{{circle}}}, {Level(3)}), expected, 1e-14);
        }
    }
}

TEST(Hatch, LineThatTouchesACircleDrawsNothing) {
    const std::vector<HatchLine> expected = {LevelLine(0, -5, 5)};
    ExpectLines(Lines({HatchLoop{{OxGeCircArc2d{{0, 0}, 5, 0, 2 * kPi, false}}}}, {Level(5)}), expected,
                1e-14);
}

TEST(Hatch, CircleWithAnglesCountedDownIsStillFull) {
    const std::vector<HatchLine> expected = {LevelLine(0, -5, 5)};
    ExpectLines(Lines({HatchLoop{{OxGeCircArc2d{{0, 0}, 5, 2 * kPi, 0, false}}}}, {Level(5)}), expected,
                1e-14);
}

TEST(Hatch, ArcRunsInItsSense) {
    // From angle 0 over a quarter turn, and back along the chord: above the chord, or (clockwise) below it.
    const HatchLoop above{{OxGeCircArc2d{{0, 0}, 5, 0, kPi / 2, false}}};
    ExpectLines(Lines({above}, {{0.0, {0, 3}, {0, 50}, {}}}), {LevelLine(3, 2, 4)}, 1e-14);
    const HatchLoop below{{OxGeCircArc2d{{0, 0}, 5, 0, kPi / 2, true}}};
    ExpectLines(Lines({below}, {{0.0, {0, -3}, {0, 50}, {}}}), {LevelLine(-3, 2, 4)}, 1e-14);
}

TEST(Hatch, ArcWhoseEndAngleIsSmallerRunsThroughZero) {
    // From 270 degrees over 0 to 90 degrees: the right half.
    const HatchLoop half{{OxGeCircArc2d{{0, 0}, 5, 1.5 * kPi, 0.5 * kPi, false}}};
    ExpectLines(Lines({half}, {{0.0, {0, 3}, {0, 50}, {}}}), {LevelLine(3, 0, 4)}, 1e-14);
}

TEST(Hatch, EllipseIsCutExactly) {
    const OxGeEllipArc2d lying{{1, 0}, {10, 0}, 0.5, 0, 2 * kPi, false};
    ExpectLines(Lines({HatchLoop{{lying}}}, {Level(3)}),
                {LevelLine(-3, -7, 9), LevelLine(0, -9, 11), LevelLine(3, -7, 9)}, 1e-13);
    const OxGeEllipArc2d standing{{0, 0}, {0, 10}, 0.5, 0, 2 * kPi, true};
    ExpectLines(Lines({HatchLoop{{standing}}}, {Level(6)}),
                {LevelLine(-6, -4, 4), LevelLine(0, -5, 5), LevelLine(6, -4, 4)}, 1e-13);
}

TEST(Hatch, EllipticArcCountsItsAnglesFromTheMajorAxis) {
    // A quarter from the tip of the major axis (0, 10) to the left: the minor axis is (-5, 0).
    const HatchLoop quarter{{OxGeEllipArc2d{{0, 0}, {0, 10}, 0.5, 0, kPi / 2, false}}};
    ExpectLines(Lines({quarter}, {{0.0, {0, 6}, {0, 50}, {}}}), {LevelLine(6, -4, -2)}, 1e-13);
    const HatchLoop other{{OxGeEllipArc2d{{0, 0}, {0, 10}, 0.5, 0, kPi / 2, true}}};
    ExpectLines(Lines({other}, {{0.0, {0, 6}, {0, 50}, {}}}), {LevelLine(6, 2, 4)}, 1e-13);
}

TEST(Hatch, BulgeOneIsTheHalfCircleToTheRightOfTheWay) {
    const std::vector<HatchLine> lower = {LevelLine(-3, -4, 4)};
    ExpectLines(
        Lines({geometrytests::LoopOver({{{-5, 0}, 1.0}, {{5, 0}, 0.0}})}, {{0.0, {0, -3}, {0, 50}, {}}}),
        lower, 1e-14);
    const std::vector<HatchLine> upper = {LevelLine(3, -4, 4)};
    ExpectLines(
        Lines({geometrytests::LoopOver({{{-5, 0}, -1.0}, {{5, 0}, 0.0}})}, {{0.0, {0, 3}, {0, 50}, {}}}),
        upper, 1e-14);
}

TEST(Hatch, LastBulgeBelongsToTheWayBack) {
    const std::vector<HatchLine> expected = {LevelLine(-3, -4, 4), LevelLine(0, -5, 5), LevelLine(3, -4, 4)};
    ExpectLines(Lines({geometrytests::LoopOver({{{-5, 0}, 1.0}, {{5, 0}, 1.0}})}, {Level(3)}), expected,
                1e-14);
}

TEST(Hatch, FlatBulgesAreCutExactly) {
    // Sagitta s = bulge * chord / 2 over the chord 2: the circle's radius is (1 + s^2) / (2 s).
    for (const double bulge : {-1e-7, -1e-4, -0.0099, -0.0101, -0.3, -0.9}) {
        const double sagitta = -bulge;
        const double radius = (1 + sagitta * sagitta) / (2 * sagitta);
        const double height = 0.75 * sagitta;
        const double down = 0.25 * sagitta; // from the top
        const double half = std::sqrt(down * (2 * radius - down));
        ExpectLines(Lines({geometrytests::LoopOver({{{-1, 0}, bulge}, {{1, 0}, 0.0}})},
                          {{0.0, {0, height}, {0, 1}, {}}}),
                    {LevelLine(height, -half, half)}, 1e-9);
    }
}

TEST(Hatch, SplineEdgeIsCutAtItsRoots) {
    // x = 10 t, y = 20 t (1 - t); y = 3.75 at t = 1/4 and 3/4. The way back is the gap that closes the loop.
    const HatchLoop loop{
        {geometrytests::EdgeAlong(MakeCurve(2, ClampedKnots(2, 3), {{0, 0}, {5, 10}, {10, 0}}))}};
    ExpectLines(Lines({loop}, {{0.0, {0, 3.75}, {0, 50}, {}}}), {LevelLine(3.75, 2.5, 7.5)}, 1e-13);
    // 2 units apart along y; the top at y = 5 is touched by no line.
    const std::vector<HatchLine> lines = Lines({loop}, {{0.0, {0, 1}, {0, 2}, {}}});
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_NEAR(lines[1].start.x, 5 - 5 * std::sqrt(0.4), 1e-13);
}

TEST(Hatch, LineThatTouchesTheTopOfASplineDrawsNothing) {
    const HatchLoop loop{
        {geometrytests::EdgeAlong(MakeCurve(2, ClampedKnots(2, 3), {{0, 0}, {5, 10}, {10, 0}}))}};
    ExpectLines(Lines({loop}, {Level(5)}), {LevelLine(0, 0, 10)}, 0.0);
}

TEST(Hatch, RationalCircleIsCutLikeACircle) {
    const std::vector<HatchLine> expected = {LevelLine(-0.6, -0.8, 0.8), LevelLine(0, -1, 1),
                                             LevelLine(0.6, -0.8, 0.8)};
    ExpectLines(Lines({HatchLoop{{geometrytests::EdgeAlong(geometrytests::UnitCircle())}}}, {Level(0.6)}),
                expected, 1e-14);
}

TEST(Hatch, EdgesThatRunBackwardMakeTheSameArea) {
    const HatchLoop ordered{
        {OxGeLineSeg2d{{0, 0}, {10, 0}}, OxGeLineSeg2d{{10, 0}, {10, 10}}, OxGeLineSeg2d{{10, 10}, {0, 0}}}};
    const HatchLoop mixed{
        {OxGeLineSeg2d{{0, 0}, {10, 0}}, OxGeLineSeg2d{{10, 10}, {10, 0}}, OxGeLineSeg2d{{10, 10}, {0, 0}}}};
    ExpectLines(Lines({mixed}, {Level(1.3)}), Lines({ordered}, {Level(1.3)}));
}

TEST(Hatch, GapsBetweenEdgesAreClosedByStraightLines) {
    const HatchLoop loop{{OxGeLineSeg2d{{0, 0}, {10, 0}}, OxGeLineSeg2d{{10, 10}, {0, 10}}}};
    ExpectLines(Lines({loop}, {Level(2.5)}), Lines({Rectangle(0, 0, 10, 10)}, {Level(2.5)}), 0.0);
}

TEST(Hatch, LoopOfSeveralClosedEdgesHatchesEach) {
    const HatchLoop loop{
        {OxGeCircArc2d{{0, 0}, 5, 0, 2 * kPi, false}, OxGeCircArc2d{{20, 0}, 5, 0, 2 * kPi, true}}};
    ExpectLines(Lines({loop}, {{0.0, {0, 3}, {0, 50}, {}}}), {LevelLine(3, -4, 4), LevelLine(3, 16, 24)},
                1e-13);
}

TEST(Hatch, NothingToHatchGivesNoLines) {
    EXPECT_TRUE(Lines({}, {Level(1)}).empty());
    EXPECT_TRUE(Lines({Rectangle(0, 0, 1, 1)}, {}).empty());
    EXPECT_TRUE(Lines({HatchLoop{}}, {Level(1)}).empty());
    EXPECT_TRUE(Lines({Polygon({{1, 1}})}, {Level(1)}).empty());
    EXPECT_TRUE(Lines({Polygon({{1, 1}, {5, 5}})}, {Level(1)}).empty());
    EXPECT_TRUE(Lines({HatchLoop{{OxGeCircArc2d{{0, 0}, 0, 0, 2 * kPi, false}}}}, {Level(1)}).empty());
    EXPECT_TRUE(Lines({Rectangle(0.1, 0.1, 0.9, 0.9)}, {Level(1)}).empty());
}

TEST(Hatch, RoundingNoiseBesideLargeCoordinatesIsZero) {
    const double third = kPi / 3;
    const HatchFamily family{third, {0, 0}, {-std::sin(third), std::cos(third)}, {}};
    for (const HatchLine& line : Lines({Rectangle(0, 0, 100, 100)}, {family})) {
        for (const double value : {line.start.x, line.start.y, line.end.x, line.end.y}) {
            EXPECT_TRUE(value == 0.0 || std::fabs(value) > 1e-6) << value;
            EXPECT_FALSE(std::signbit(value)) << value;
        }
    }
}

} // namespace
