// Dashes along hatch lines: phase, cuts, dots.
#include "drawing/geometry/Hatch.h"
#include "tests/geometry/CurveSamples.h"
#include "tests/geometry/HatchSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using namespace geometry;
using geometrytests::ExpectLines;
using geometrytests::Lines;
using geometrytests::Rectangle;

/// The pieces that one level line at y = 0.5 through the rectangle from x = 0 to `width` is drawn in.
std::vector<HatchLine> OneLine(double width, double base, const std::vector<double>& dashes) {
    return Lines({Rectangle(0, 0, width, 1)}, {{0.0, {base, 0.5}, {0, 100}, dashes}});
}

HatchLine Piece(double from, double to) {
    return {{from, 0.5}, {to, 0.5}};
}

struct DashCase {
    const char* name;
    double width;
    double base;
    std::vector<double> dashes;
    std::vector<HatchLine> expected;
};

TEST(HatchDashes, OneLine) {
    const std::vector<DashCase> cases = {
        {"dash and gap from the base", 4, 0, {1, -1}, {Piece(0, 1), Piece(2, 3)}},
        {"dash cut at both ends",
         4,
         -0.25,
         {1, -0.5},
         {Piece(0, 0.75), Piece(1.25, 2.25), Piece(2.75, 3.75)}},
        {"dash cut at the end", 3, 0, {2, -0.5}, {Piece(0, 2), Piece(2.5, 3)}},
        {"base to the right of the area", 4, 101, {1, -1}, {Piece(1, 2), Piece(3, 4)}},
        {"dash that ends where the line starts", 3, -1, {1, -1}, {Piece(1, 2)}},
        {"dash that starts where the line ends", 2, 0, {1, -1}, {Piece(0, 1)}},
        {"pattern longer than the line", 3, -10, {12, -5}, {Piece(0, 2)}},
        {"line inside one dash", 3, -10, {100, -5}, {Piece(0, 3)}},
        {"line inside one gap", 3, -10, {5, -100}, {}},
        {"gap first", 4, 0, {-1, 1}, {Piece(1, 2), Piece(3, 4)}},
        {"two gaps in a row", 5, 0, {1, -0.5, -0.5}, {Piece(0, 1), Piece(2, 3), Piece(4, 5)}},
        {"two dashes in a row stay two", 3, 0, {1, 0.5, -0.5}, {Piece(0, 1), Piece(1, 1.5), Piece(2, 3)}},
        {"dashes without gap", 2.5, 0, {1}, {Piece(0, 1), Piece(1, 2), Piece(2, 2.5)}},
        {"gaps only", 4, 0, {-1, -2}, {}},
        {"dots on both ends", 4, 0, {0, -2}, {Piece(0, 0), Piece(2, 2), Piece(4, 4)}},
        {"dots past both ends", 4, 0.5, {0, -2}, {Piece(0.5, 0.5), Piece(2.5, 2.5)}},
        {"dash and dot",
         4,
         0,
         {1, -0.5, 0, -0.5},
         {Piece(0, 1), Piece(1.5, 1.5), Piece(2, 3), Piece(3.5, 3.5)}},
        {"dot on the end of a dash", 2, 0, {1, 0, -1}, {Piece(0, 1), Piece(1, 1)}},
    };
    for (const DashCase& row : cases) {
        SCOPED_TRACE(row.name);
        ExpectLines(OneLine(row.width, row.base, row.dashes), row.expected);
    }
}

TEST(HatchDashes, EveryLineStartsItsPatternAtItsOwnOffset) {
    const std::vector<HatchLine> expected = {{{0, 0}, {1, 0}},     {{2, 0}, {3, 0}}, {{0.5, 1}, {1.5, 1}},
                                             {{2.5, 1}, {3.5, 1}}, {{1, 2}, {2, 2}}, {{3, 2}, {4, 2}}};
    ExpectLines(Lines({Rectangle(0, 0, 4, 3)}, {{0.0, {0, 0}, {0.5, 1}, {1, -1}}}), expected);
    // The same lines counted downward.
    ExpectLines(Lines({Rectangle(0, 0, 4, 3)}, {{0.0, {0, 0}, {-0.5, -1}, {1, -1}}}), expected);
}

TEST(HatchDashes, PhaseRunsOnBehindAnIsland) {
    const std::vector<HatchLine> expected = {Piece(0, 1), Piece(2, 2.5), Piece(4.5, 5), Piece(6, 7)};
    ExpectLines(
        Lines({Rectangle(0, 0, 7, 1), Rectangle(2.5, 0.25, 4.5, 0.75)}, {{0.0, {0, 0.5}, {0, 100}, {1, -1}}}),
        expected);
}

TEST(HatchDashes, PhaseOfSlantedLines) {
    // Along 3-4-5: dashes of length 5 are (3, 4) long.
    const double angle = std::atan2(4.0, 3.0);
    const std::vector<HatchLine> expected = {{{0, 0}, {3, 4}}, {{6, 8}, {9, 12}}};
    ExpectLines(Lines({Rectangle(0, 0, 30, 14)}, {{angle, {0, 0}, {100, 0}, {5, -5}}}), expected);
}

/// What dashes leave of a solid line, by trying every dash near it.
void CutSolidLine(const HatchLine& solid, const HatchFamily& family, std::vector<HatchLine>& pieces) {
    const Vector direction = {std::cos(family.angle), std::sin(family.angle)};
    const Vector normal = {-direction.y, direction.x};
    const double number = std::round(Dot(solid.start - family.base, normal) / Dot(family.offset, normal));
    const Point origin = family.base + number * family.offset;
    const double from = Dot(solid.start - origin, direction);
    const double to = Dot(solid.end - origin, direction);
    double cycle = 0.0;
    for (const double dash : family.dashes) {
        cycle += std::fabs(dash);
    }
    const double firstTurn = std::floor(from / cycle) - 2;
    for (int turn = 0; (firstTurn + turn) * cycle <= to; ++turn) {
        double at = (firstTurn + turn) * cycle;
        for (const double dash : family.dashes) {
            const double next = at + std::fabs(dash);
            const bool isSeen = dash > 0 ? std::min(next, to) > std::max(at, from) : at >= from && at <= to;
            if (dash >= 0 && isSeen) {
                pieces.push_back(
                    {origin + std::max(at, from) * direction, origin + std::min(next, to) * direction});
            }
            at = next;
        }
    }
}

TEST(HatchDashes, DashedLinesAreTheSolidLinesCutUp) {
    std::mt19937_64 random(10);
    std::size_t total = 0;
    for (int round = 0; round < 200; ++round) {
        const std::vector<HatchLoop> loops = {geometrytests::RandomLoop(random),
                                              geometrytests::RandomLoop(random)};
        HatchFamily family;
        family.angle = geometrytests::RandomBetween(random, -4, 4);
        family.base = {geometrytests::RandomBetween(random, -50, 50),
                       geometrytests::RandomBetween(random, -50, 50)};
        const double across = geometrytests::RandomBetween(random, 0.3, 2) * (random() % 2 == 0 ? 1 : -1);
        const double along = geometrytests::RandomBetween(random, -2, 2);
        family.offset = {std::cos(family.angle) * along - std::sin(family.angle) * across,
                         std::sin(family.angle) * along + std::cos(family.angle) * across};
        const std::vector<HatchLine> solid = Lines(loops, {family});
        for (std::size_t dash = 0; dash < 1 + random() % 5; ++dash) {
            const double length = geometrytests::RandomBetween(random, 0.1, 2);
            const std::uint64_t kind = random() % 5;
            family.dashes.push_back(kind == 0 ? 0.0 : kind < 3 ? length : -length);
        }
        family.dashes.push_back(-0.3);
        std::vector<HatchLine> expected;
        for (const HatchLine& line : solid) {
            CutSolidLine(line, family, expected);
        }
        total += expected.size();
        SCOPED_TRACE(round);
        ExpectLines(Lines(loops, {family}), expected, 1e-9);
    }
    EXPECT_GT(total, 10000U);
}

} // namespace
