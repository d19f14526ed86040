// What holds for the hatch lines of any area.
#include "drawing/geometry/Hatch.h"
#include "tests/geometry/CurveSamples.h"
#include "tests/geometry/HatchSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using namespace geometry;
using geometrytests::Lines;
using geometrytests::Polygon;
using geometrytests::RandomBetween;

HatchFamily Solid(double angle, Point base, double spacing) {
    return {angle, base, {-spacing * std::sin(angle), spacing * std::cos(angle)}, {}};
}

double TotalLength(const std::vector<HatchLine>& lines) {
    double length = 0.0;
    for (const HatchLine& line : lines) {
        length += Distance(line.start, line.end);
    }
    return length;
}

double Area(const std::vector<Point>& polygon) {
    double twice = 0.0;
    for (std::size_t index = 0; index < polygon.size(); ++index) {
        twice += Cross(polygon[index], polygon[(index + 1) % polygon.size()]);
    }
    return std::fabs(0.5 * twice);
}

/// Corners around a middle at growing angles: never crosses itself.
std::vector<Point> RandomStar(std::mt19937_64& random) {
    std::vector<Point> corners;
    const std::size_t count = 3 + random() % 40;
    const double shift = RandomBetween(random, 0, 6);
    for (std::size_t index = 0; index < count; ++index) {
        const double angle =
            shift + 2 * std::numbers::pi * static_cast<double>(index) / static_cast<double>(count);
        const double radius = RandomBetween(random, 1, 10);
        corners.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    return corners;
}

TEST(HatchProperties, LengthTimesSpacingIsTheArea) {
    std::mt19937_64 random(11);
    for (int round = 0; round < 100; ++round) {
        const std::vector<Point> star = RandomStar(random);
        const double spacing = 0.005;
        const HatchFamily family =
            Solid(RandomBetween(random, 0, 7), {RandomBetween(random, -5, 5), 0}, spacing);
        EXPECT_NEAR(TotalLength(Lines({Polygon(star)}, {family})) * spacing, Area(star), 1e-3 * Area(star))
            << "round " << round;
    }
}

TEST(HatchProperties, CircleAndEllipseAreasComeOut) {
    const double spacing = 0.001;
    const HatchLoop circle{{OxGeCircArc2d{{3, -2}, 2, 1, 1 + 2 * std::numbers::pi, false}}};
    EXPECT_NEAR(TotalLength(Lines({circle}, {Solid(0.3, {0, 0}, spacing)})) * spacing, 4 * std::numbers::pi,
                1e-4);
    const HatchLoop ellipse{{OxGeEllipArc2d{{3, -2}, {2, 1}, 0.4, 1, 1 + 2 * std::numbers::pi, true}}};
    EXPECT_NEAR(TotalLength(Lines({ellipse}, {Solid(0.3, {0, 0}, spacing)})) * spacing, 2 * std::numbers::pi,
                1e-4);
}

TEST(HatchProperties, PointsOfAFamilyLineAreDrawnJustWhereTheyAreInside) {
    std::mt19937_64 random(12);
    std::size_t insideSeen = 0;
    std::size_t outsideSeen = 0;
    for (int round = 0; round < 200; ++round) {
        std::vector<HatchLoop> loops;
        std::vector<std::vector<Point>> polygons;
        for (std::size_t loop = 0; loop < 1 + random() % 3; ++loop) {
            loops.push_back(geometrytests::RandomLoop(random));
            polygons.push_back(geometrytests::Tessellated(loops.back(), 300));
        }
        const double spacing = RandomBetween(random, 0.2, 3);
        const HatchFamily family =
            Solid(RandomBetween(random, -4, 4), {RandomBetween(random, -5, 5), 1}, spacing);
        const Vector along = {std::cos(family.angle), std::sin(family.angle)};
        const Vector across = {-along.y, along.x};
        const std::vector<HatchLine> lines = Lines(loops, {family});
        for (int probe = 0; probe < 150; ++probe) {
            const double number = std::round(RandomBetween(random, -15, 15) / spacing);
            const Point point =
                family.base + (number * spacing) * across + RandomBetween(random, -15, 15) * along;
            if (geometrytests::DistanceToSides(polygons, point) < 2e-3) {
                continue;
            }
            const bool inside = geometrytests::IsInside(polygons, point);
            const auto isOn = [&](const HatchLine& line) {
                return geometrytests::DistanceToSegment(point, line.start, line.end) < 1e-9;
            };
            const auto count = std::count_if(lines.begin(), lines.end(), isOn);
            ASSERT_EQ(count, inside ? 1 : 0) << "round " << round << " at " << point.x << ", " << point.y;
            ++(inside ? insideSeen : outsideSeen);
        }
    }
    EXPECT_GT(insideSeen, 3000U);
    EXPECT_GT(outsideSeen, 3000U);
}

TEST(HatchProperties, LinesComeInOrderAndDoNotMeet) {
    std::mt19937_64 random(13);
    for (int round = 0; round < 100; ++round) {
        const HatchFamily family = Solid(RandomBetween(random, -4, 4), {0, 1}, RandomBetween(random, 0.2, 3));
        const Vector along = {std::cos(family.angle), std::sin(family.angle)};
        const Vector across = {-along.y, along.x};
        const std::vector<HatchLine> lines =
            Lines({geometrytests::RandomLoop(random), geometrytests::RandomLoop(random)}, {family});
        for (std::size_t index = 0; index < lines.size(); ++index) {
            EXPECT_GT(Dot(lines[index].end - lines[index].start, along), 0.0);
            if (index == 0) {
                continue;
            }
            const double rise = Dot(lines[index].start - lines[index - 1].end, across);
            EXPECT_GT(rise, -1e-9);
            if (rise < 1e-6) {
                EXPECT_GT(Dot(lines[index].start - lines[index - 1].end, along), 0.0);
            }
        }
    }
}

TEST(HatchProperties, AreaTurnedMovedAndScaledGivesTheLinesTurnedMovedAndScaled) {
    std::mt19937_64 random(14);
    for (int round = 0; round < 100; ++round) {
        const std::vector<Point> star = RandomStar(random);
        const double turn = RandomBetween(random, -3, 3);
        const double scale = RandomBetween(random, 0.01, 100);
        const auto moved = [&](Point p) {
            return Point{50 + scale * (std::cos(turn) * p.x - std::sin(turn) * p.y),
                         -70 + scale * (std::sin(turn) * p.x + std::cos(turn) * p.y)};
        };
        std::vector<Point> image(star.size());
        std::transform(star.begin(), star.end(), image.begin(), moved);
        HatchFamily family = Solid(RandomBetween(random, -1, 1), {0.3, 0.4}, 0.37);
        family.dashes = {0.5, -0.25, 0.0, -0.25};
        HatchFamily other = family;
        other.angle += turn;
        other.base = moved(family.base);
        other.offset = moved(family.offset) - moved({0, 0});
        for (double& dash : other.dashes) {
            dash *= scale;
        }
        std::vector<HatchLine> expected = Lines({Polygon(star)}, {family});
        for (HatchLine& line : expected) {
            line = {moved(line.start), moved(line.end)};
        }
        SCOPED_TRACE(round);
        geometrytests::ExpectLines(Lines({Polygon(image)}, {other}), expected, 1e-9 * scale);
    }
}

TEST(HatchProperties, WholeNumberPolygonsWithEveryVertexOnALineKeepTheirArea) {
    std::mt19937_64 random(15);
    for (int round = 0; round < 300; ++round) {
        // All corners lie on lines, many edges too. Halfway between two lines nothing is special: hatched
        // twice as densely, the odd lines must cover the area of trapezes exactly, and the even ones stay
        // inside.
        std::vector<Point> corners;
        for (std::size_t index = 0; index < 3 + random() % 8; ++index) {
            corners.push_back({static_cast<double>(random() % 12), static_cast<double>(random() % 12)});
        }
        const std::vector<std::vector<Point>> polygons = {corners};
        for (const HatchLine& line : Lines({Polygon(corners)}, {{0.0, {0, 0}, {0, 1}, {}}})) {
            for (const double part : {0.0519, 0.3173, 0.5071, 0.7717, 0.9497}) {
                // Lines count boundary points as below them, so just above a line is what it sees. The parts
                // are odd ones, so that no corner lies there.
                const Point above = Between(line.start, line.end, part) + Vector{0, 1e-9};
                if (geometrytests::DistanceToSides(polygons, above) > 0.5e-9) {
                    EXPECT_TRUE(geometrytests::IsInside(polygons, above)) << "round " << round;
                }
            }
        }
        // The lines through the corners see the same parity just above them as a line slightly higher.
        const std::vector<HatchLine> shifted = Lines({Polygon(corners)}, {{0.0, {0, 1e-6}, {0, 1}, {}}});
        EXPECT_NEAR(TotalLength(Lines({Polygon(corners)}, {{0.0, {0, 0}, {0, 1}, {}}})), TotalLength(shifted),
                    1e-3)
            << "round " << round;
    }
}

} // namespace
