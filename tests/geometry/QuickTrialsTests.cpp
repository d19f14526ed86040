// Quick answers about steps along cubics: they agree with what many points of the curve say.
#include "drawing/geometry/QuickTrials.h"
#include "tests/geometry/CurveSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

using namespace geometry;
using geometrytests::ClampedKnots;
using geometrytests::MakeCurve;
using geometrytests::RandomBetween;

Point At(const BezierChain& chain, double position) {
    const std::size_t piece = std::min(static_cast<std::size_t>(position), PieceCount(chain) - 1);
    return EvaluatePiece(chain, piece, position - static_cast<double>(piece));
}

/// The largest distance from the chord between two positions, a little too small by the gaps between points.
double FurthestFromChord(const BezierChain& chain, double from, double to) {
    constexpr int kPoints = 500;
    double furthest = 0.0;
    for (int step = 0; step <= kPoints; ++step) {
        const Point point = At(chain, from + (to - from) * step / kPoints);
        furthest =
            std::max(furthest, geometrytests::DistanceToSegment(point, At(chain, from), At(chain, to)));
    }
    return furthest;
}

std::optional<bool> Ask(const BezierChain& chain, double from, double to, double near, double far) {
    QuickTrials trials(chain, 1e-14);
    trials.SetBounds(near, far);
    return trials.StaysNear(At(chain, from), from, to);
}

BezierChain CubicThrough(const std::vector<Point>& controlPoints) {
    return DecomposeIntoBezier(MakeCurve(3, ClampedKnots(3, controlPoints.size()), controlPoints));
}

TEST(QuickTrials, AgreeWithManyPointsAndSeldomGiveNoAnswer) {
    std::mt19937_64 random(10);
    int answers = 0;
    constexpr int kRounds = 2000;
    for (int round = 0; round < kRounds; ++round) {
        // Some on a line, where the curve runs back and forth past the ends of chords.
        const double height = round % 3 == 0 ? 0.0 : RandomBetween(random, 0, 10);
        std::vector<Point> points(4 + random() % 5);
        for (Point& point : points) {
            point = {RandomBetween(random, -10, 10), height * RandomBetween(random, -1, 1)};
        }
        const BezierChain chain = CubicThrough(points);
        const auto end = static_cast<double>(PieceCount(chain));
        const double from = RandomBetween(random, 0, end);
        const double to = RandomBetween(random, from, end);
        const double furthest = FurthestFromChord(chain, from, to);
        const double near = furthest * RandomBetween(random, 0.5, 2.0) + 0.001;
        const std::optional<bool> answer = Ask(chain, from, to, near, 1.03 * near);
        if (!answer) {
            continue;
        }
        ++answers;
        if (*answer) {
            EXPECT_LE(furthest, near) << "round " << round;
        } else {
            EXPECT_GT(furthest, 1.029 * near) << "round " << round;
        }
    }
    EXPECT_GT(answers, kRounds / 2);
}

TEST(QuickTrials, BoundsAreJudgedByTheFurthestPoint) {
    // y = 3 t (1 - t) h over the chord from 0 to 12: at most 3/4 h away, in the middle.
    const BezierChain chain = CubicThrough({{0, 0}, {4, 4}, {8, 4}, {12, 0}});
    EXPECT_EQ(Ask(chain, 0.0, 1.0, 3.01, 4.0), true);
    EXPECT_EQ(Ask(chain, 0.0, 1.0, 2.5, 2.99), false);
    EXPECT_EQ(Ask(chain, 0.0, 1.0, 2.5, 3.01), std::nullopt);
}

TEST(QuickTrials, StraightCurveThatPassesTheChordsEndIsNotCalledNear) {
    // Each runs past 2, where the chord ends, and comes back; the second turns at the joint of two pieces.
    const BezierChain inside = CubicThrough({{0, 0}, {20, 0}, {10, 0}, {2, 0}});
    EXPECT_NE(Ask(inside, 0.0, 1.0, 0.1, 0.11), true);
    const std::vector<Point> there = {{0, 0}, {1, 0}, {2, 0}, {10, 0}, {2, 0}, {1, 0}, {2, 0}};
    const BezierChain joint = DecomposeIntoBezier(MakeCurve(3, {0, 0, 0, 0, 1, 1, 1, 2, 2, 2, 2}, there));
    EXPECT_NE(Ask(joint, 0.0, 2.0, 0.1, 0.11), true);
}

TEST(QuickTrials, NoAnswersNearRoundingNorForOtherCurves) {
    const std::vector<Point> points = {{0, 0}, {40, 4}, {80, 4}, {120, 0}};
    const BezierChain cubic = CubicThrough(points);
    EXPECT_EQ(Ask(cubic, 0.0, 1.0, 10.0, 11.0), true);
    QuickTrials rounded(cubic, 1e-5);
    rounded.SetBounds(9.0, 10.0);
    EXPECT_EQ(rounded.StaysNear({0, 0}, 0.0, 1.0), std::nullopt);
    EXPECT_EQ(Ask(cubic, 0.0, 1.0, 1e60, 2e60), std::nullopt);
    const BezierChain rational = DecomposeIntoBezier(MakeCurve(3, ClampedKnots(3, 4), points, {1, 2, 2, 1}));
    EXPECT_EQ(Ask(rational, 0.0, 1.0, 10.0, 11.0), std::nullopt);
    const BezierChain quadratic = DecomposeIntoBezier(MakeCurve(2, ClampedKnots(2, 4), points));
    EXPECT_EQ(Ask(quadratic, 0.0, 1.0, 10.0, 11.0), std::nullopt);
}

} // namespace
