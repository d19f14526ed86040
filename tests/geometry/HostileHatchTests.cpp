// Hatches that must be refused, and that must end.
#include "drawing/geometry/Hatch.h"
#include "tests/geometry/CurveSamples.h"
#include "tests/geometry/HatchSamples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using namespace geometry;
using geometrytests::LoopOver;
using geometrytests::Polygon;
using geometrytests::Rectangle;

constexpr std::size_t kMillion = 1000000;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

Status Evaluate(const std::vector<HatchLoop>& loops, const HatchFamily& family, std::size_t& count) {
    std::vector<HatchLine> lines(3);
    const Status status = EvaluateHatch(loops, {family}, kMillion, lines);
    count = lines.size();
    return status;
}

Status Evaluate(const std::vector<HatchLoop>& loops, const HatchFamily& family) {
    std::size_t count = 0;
    const Status status = Evaluate(loops, family, count);
    EXPECT_TRUE(status == Status::kOk || count == 0);
    return status;
}

TEST(HostileHatch, AMillionSolidLinesAreAllowedAndOneMoreRefused) {
    std::size_t count = 0;
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 1, 1e6)}, {0.0, {0, 0.5}, {0, 1}, {}}, count), Status::kOk);
    EXPECT_EQ(count, kMillion);
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 1, 1e6 + 1)}, {0.0, {0, 0.5}, {0, 1}, {}}), Status::kTooManyLines);
}

TEST(HostileHatch, AMillionDashesAreAllowedAndOneMoreRefused) {
    const HatchFamily family{0.0, {0, 0.5}, {0, 1}, {0.5, -0.5}};
    std::size_t count = 0;
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 1000, 1000)}, family, count), Status::kOk);
    EXPECT_EQ(count, kMillion);
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 1000, 1000), Rectangle(0, 2000, 1, 2001)}, family),
              Status::kTooManyLines);
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 1e6 + 1, 1)}, family), Status::kTooManyLines);
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 1e6, 1)}, family), Status::kOk);
}

TEST(HostileHatch, FamiliesShareTheLimit) {
    const HatchFamily family{0.0, {0, 0.5}, {0, 1}, {}};
    std::vector<HatchLine> lines;
    EXPECT_EQ(EvaluateHatch({Rectangle(0, 0, 1, 5e5)}, {family, family}, kMillion, lines), Status::kOk);
    EXPECT_EQ(lines.size(), kMillion);
    EXPECT_EQ(EvaluateHatch({Rectangle(0, 0, 1, 5e5 + 1)}, {family, family}, kMillion, lines),
              Status::kTooManyLines);
    EXPECT_TRUE(lines.empty());
}

TEST(HostileHatch, TinySpacingsAndPatternsAreRefused) {
    const std::vector<HatchLoop> square = {Rectangle(0, 0, 10, 10)};
    for (const double tiny : {9e-6, 1e-9, 1e-30, 1e-200, 1e-320}) {
        EXPECT_EQ(Evaluate(square, {0.0, {0, 0}, {0, tiny}, {}}), Status::kTooManyLines) << tiny;
        EXPECT_EQ(Evaluate(square, {0.7, {0, 0}, {-tiny, tiny}, {}}), Status::kTooManyLines) << tiny;
        if (tiny < 4e-6) {
            EXPECT_EQ(Evaluate(square, {0.0, {0, 0}, {0, 1}, {tiny, -tiny}}), Status::kTooManyLines) << tiny;
            EXPECT_EQ(Evaluate(square, {0.0, {0, 0}, {0, 1}, {0, -tiny}}), Status::kTooManyLines) << tiny;
        }
    }
}

TEST(HostileHatch, DotsWithoutGapsAreRefusedWhereTheyWouldBeDrawn) {
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 10, 10)}, {0.0, {0, 0}, {0, 1}, {0, 0}}), Status::kTooManyLines);
    EXPECT_EQ(Evaluate({Rectangle(0, 0.1, 10, 0.9)}, {0.0, {0, 0}, {0, 1}, {0, 0}}), Status::kOk);
}

TEST(HostileHatch, OffsetsThatDoNotLeadAwayAreRefused) {
    const std::vector<HatchLoop> square = {Rectangle(0, 0, 10, 10)};
    EXPECT_EQ(Evaluate(square, {0.0, {0, 0}, {0, 0}, {}}), Status::kParallelOffset);
    EXPECT_EQ(Evaluate(square, {0.0, {0, 0}, {5, 0}, {}}), Status::kParallelOffset);
    EXPECT_EQ(Evaluate(square, {std::numbers::pi / 2, {0, 0}, {0, 5}, {}}), Status::kParallelOffset);
    EXPECT_EQ(Evaluate(square, {0.5, {0, 0}, {5 * std::cos(0.5), 5 * std::sin(0.5)}, {}}),
              Status::kParallelOffset);
    EXPECT_EQ(Evaluate(square, {0.5, {0, 0}, {0, 5}, {}}), Status::kOk);
}

TEST(HostileHatch, NumbersThatAreNotFiniteAreRefusedWhereverTheyStand) {
    for (const double bad : {kNan, kInfinity, -kInfinity}) {
        const HatchFamily good{0.0, {0, 0}, {0, 1}, {1, -1}};
        const std::vector<HatchLoop> square = {Rectangle(0, 0, 10, 10)};
        const std::vector<HatchFamily> families = {
            {bad, {0, 0}, {0, 1}, {}},   {0.0, {bad, 0}, {0, 1}, {}}, {0.0, {0, bad}, {0, 1}, {}},
            {0.0, {0, 0}, {bad, 1}, {}}, {0.0, {0, 0}, {0, bad}, {}}, {0.0, {0, 0}, {0, 1}, {1, bad}}};
        for (const HatchFamily& family : families) {
            EXPECT_EQ(Evaluate(square, family), Status::kNotFinite);
        }
        const std::vector<geometry::HatchEdge> edges = {
            OxGeLineSeg2d{{bad, 0}, {1, 1}},
            OxGeLineSeg2d{{0, 0}, {1, bad}},
            OxGeCircArc2d{{0, bad}, 1, 0, 1, false},
            OxGeCircArc2d{{0, 0}, bad, 0, 1, false},
            OxGeCircArc2d{{0, 0}, 1, bad, 1, false},
            OxGeCircArc2d{{0, 0}, 1, 0, bad, false},
            OxGeEllipArc2d{{0, 0}, {bad, 0}, 1, 0, 1, false},
            OxGeEllipArc2d{{0, 0}, {1, 0}, bad, 0, 1, false},
            OxGeEllipArc2d{{0, 0}, {1, 0}, 1, bad, 1, false},
        };
        for (const geometry::HatchEdge& edge : edges) {
            EXPECT_EQ(Evaluate({HatchLoop{{edge}}}, good), Status::kNotFinite);
        }
        EXPECT_EQ(Evaluate({LoopOver({{{0, 0}, bad}, {{1, 1}, 0}})}, good), Status::kNotFinite);
        EXPECT_EQ(Evaluate({LoopOver({{{0, 0}, 0.5}, {{bad, 1}, 0}})}, good), Status::kNotFinite);
        EXPECT_EQ(Evaluate({LoopOver({{{0, 0}, 0.5}, {{1, bad}, 0}})}, good), Status::kNotFinite);
    }
}

TEST(HostileHatch, NumbersTooLargeAreRefused) {
    const HatchFamily good{0.0, {0, 0}, {0, 1}, {}};
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 1e308, 10)}, good), Status::kOutOfRange);
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 10, 10)}, {0.0, {1e308, 0}, {0, 1}, {}}), Status::kOutOfRange);
    EXPECT_EQ(Evaluate({LoopOver({{{0, 0}, 1e308}, {{1, 1}, 0}})}, good), Status::kOutOfRange);
    EXPECT_EQ(Evaluate({HatchLoop{{OxGeEllipArc2d{{0, 0}, {1e60, 0}, 1e60, 0, 1, false}}}}, good),
              Status::kOutOfRange);
}

TEST(HostileHatch, LinesAndDashesTooFarFromTheBaseAreRefused) {
    const std::vector<HatchLoop> square = {Rectangle(0, 0, 10, 10)};
    EXPECT_EQ(Evaluate(square, {0.0, {0, 9e11}, {0, 1}, {}}), Status::kOk);
    EXPECT_EQ(Evaluate(square, {0.0, {0, 1.1e12}, {0, 1}, {}}), Status::kOutOfRange);
    EXPECT_EQ(Evaluate(square, {0.0, {9e11, 0}, {0, 1}, {0.5, -0.5}}), Status::kOk);
    EXPECT_EQ(Evaluate(square, {0.0, {1.1e12, 0}, {0, 1}, {0.5, -0.5}}), Status::kOutOfRange);
    EXPECT_EQ(Evaluate(square, {0.0, {1e90, 1e90}, {0, 1}, {1, -1}}), Status::kOutOfRange);
}

TEST(HostileHatch, HugeAreasWithHugeSpacingsAreHatched) {
    std::size_t count = 0;
    EXPECT_EQ(Evaluate({Rectangle(-1e99, -1e99, 1e99, 1e99)}, {0.0, {0, 0}, {0, 1e98}, {1e98, -1e97}}, count),
              Status::kOk);
    EXPECT_GT(count, 300U);
    EXPECT_EQ(Evaluate({Rectangle(-1e99, -1e99, 1e99, 1e99)}, {0.0, {0, 0}, {0, 1}, {}}),
              Status::kTooManyLines);
}

TEST(HostileHatch, LoopsOnEachOtherThatGiveNothingStillEnd) {
    const HatchFamily dense{0.0, {0, 0}, {0, 1e-6}, {}};
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 1, 1), Rectangle(0, 0, 1, 1)}, dense), Status::kOk);
    const HatchFamily denser{0.0, {0, 0}, {0, 1e-9}, {}};
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 1, 1), Rectangle(0, 0, 1, 1)}, denser), Status::kTooManyLines);
}

TEST(HostileHatch, ManyGapsInAPatternDoNotSlowItDown) {
    HatchFamily family{0.0, {0, 0.5}, {0, 1}, {0.0}};
    family.dashes.resize(100000, -1e-4);
    std::size_t count = 0;
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 100, 10000)}, family, count), Status::kOk);
    EXPECT_GE(count, 100000U);
}

TEST(HostileHatch, ManyDashesInAPatternOverManyShortLinesDoNotSlowItDown) {
    HatchFamily family{0.0, {0, 0.5}, {0, 1}, {}};
    for (int index = 0; index < 50000; ++index) {
        family.dashes.push_back(0.5);
        family.dashes.push_back(-0.5);
    }
    std::size_t count = 0;
    EXPECT_EQ(Evaluate({Rectangle(0, 0, 1, 100000)}, family, count), Status::kOk);
    EXPECT_EQ(count, 100000U);
}

TEST(HostileHatch, RandomNumbersOfAnySizeEnd) {
    std::mt19937_64 random(16);
    const std::vector<double> values = {0.0,  -0.0,      1.0,   -1.0, 1e-320, 1e-200, 1e-16, 0.1,
                                        1e3,  1e8,       1e15,  1e50, -1e99,  1e100,  1e101, 1e308,
                                        kNan, kInfinity, 1e-10, 2.5,  -1e-12, 1e17,   3.0,   7.0};
    // Mostly tame ones, so that not every case is refused for its first number.
    const auto any = [&] {
        return random() % 12 == 0 ? values[random() % values.size()]
                                  : geometrytests::RandomBetween(random, -10, 10);
    };
    int evaluated = 0;
    for (int round = 0; round < 3000; ++round) {
        std::vector<HatchLoop> loops(1 + random() % 2);
        for (HatchLoop& loop : loops) {
            loop.edges.emplace_back(OxGeLineSeg2d{{any(), any()}, {any(), any()}});
            loop.edges.emplace_back(OxGeCircArc2d{{any(), any()}, any(), any(), any(), random() % 2 == 0});
            loop.edges.emplace_back(
                OxGeEllipArc2d{{any(), any()}, {any(), any()}, any(), any(), any(), random() % 2 == 0});
            geometry::NurbsCurve curve;
            if (MakeNurbsCurve(2, {0, 0, 0, 1, 1, 1}, {{any(), any()}, {any(), any()}, {any(), any()}},
                               {1, std::fabs(any()), 1}, false, curve) == Status::kOk) {
                loop.edges.push_back(geometrytests::EdgeAlong(curve));
            }
        }
        loops.push_back(LoopOver({{{any(), any()}, any()}, {{any(), any()}, any()}}));
        HatchFamily family{any(), {any(), any()}, {any(), any()}, {any(), any()}};
        std::vector<HatchLine> lines;
        if (EvaluateHatch(loops, {family}, kMillion, lines) == Status::kOk) {
            ++evaluated;
            for (const HatchLine& line : lines) {
                ASSERT_TRUE(IsFinite(line.start) && IsFinite(line.end));
            }
        } else {
            ASSERT_TRUE(lines.empty());
        }
    }
    EXPECT_GT(evaluated, 100);
}

} // namespace
