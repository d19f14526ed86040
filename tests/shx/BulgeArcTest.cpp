// Bulge arcs, one and many, as instructions.
#include "tests/shx/Decoding.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <numbers>

namespace {

using namespace ShxUtility;

using std::numbers::pi;

ShapeInstruction One(int dx, int dy, int bulge) {
    const Decoded decoded = Decode({12, dx & 255, dy & 255, bulge & 255});
    EXPECT_EQ(decoded.result, 0);
    EXPECT_EQ(decoded.instructions.size(), 1U);
    return decoded.instructions.at(0);
}

TEST(BulgeArc, WithoutABulgeIsStraight) {
    EXPECT_EQ(One(3, -4, 0), Move(3, -4));
    EXPECT_EQ(One(0, 0, 0), Move(0, 0));
}

TEST(BulgeArc, WithoutADisplacementIsNoArc) {
    for (int bulge = -128; bulge <= 127; ++bulge) {
        EXPECT_EQ(One(0, 0, bulge), Move(0, 0)) << bulge;
    }
}

TEST(BulgeArc, AFullBulgeIsAHalfCircle) {
    // b = 1, k = 0: the centre is (1, 0), halfway to (2, 0). It starts at direction atan2(-0, -1), which is
    // -180, and ends at atan2(0, 1), which is 0: half a turn counter-clockwise.
    EXPECT_EQ(One(2, 0, 127), Arc(-180, 0, 1));
    // Clockwise: b = -1, k = (-1 + 1) / 2 = 0 and cy = (0 * 2 + 0) / 2 = 0 again. From -180 to 0 with an end
    // behind the start, so the start goes up a turn: from 180.
    EXPECT_EQ(One(2, 0, -127), Arc(180, 0, 1));
}

TEST(BulgeArc, HalfCirclesInTheOtherDirections) {
    // Up: centre (0, 1), from atan2(-1, -0), which is -90, to atan2(1, 0), which is 90.
    EXPECT_EQ(One(0, 2, 127), Arc(-90, 90, 1));
    // Left: centre (-1, 0), from atan2(-0, 1), which is 0, to atan2(0, -1), which is 180.
    EXPECT_EQ(One(-2, 0, 127), Arc(0, 180, 1));
    // Down: centre (0, -1), from atan2(1, -0), 90, to atan2(-1, 0), -90. That is -180, which is not below
    // -180; counter-clockwise the end goes up: 270.
    EXPECT_EQ(One(0, -2, 127), Arc(90, 270, 1));
}

TEST(BulgeArc, TheBulgeIsSigned) {
    // -128 / 127 is a little more than a half circle, clockwise.
    const ShapeInstruction arc = One(2, 0, -128);
    EXPECT_EQ(arc.op, ShapeOp::Arc);
    EXPECT_NEAR(arc.y - arc.x, -4 * std::atan(128.0 / 127.0) * 180 / pi, 1e-12);
}

// An arc with the bulge b sweeps 4 atan(b) and its ends are the displacement apart.
TEST(BulgeArc, EveryBulgeOfManyDisplacements) {
    for (int bulge = -128; bulge <= 127; ++bulge) {
        for (int i = 0; i < 64; ++i) {
            const int dx = i * 37 % 255 - 127;
            const int dy = i * 91 % 255 - 127;
            if (bulge == 0 || (dx == 0 && dy == 0)) {
                continue;
            }
            const ShapeInstruction arc = One(dx, dy, bulge);
            ASSERT_EQ(arc.op, ShapeOp::Arc);
            const double start = arc.x * pi / 180;
            const double end = arc.y * pi / 180;
            EXPECT_NEAR(arc.y - arc.x, 4 * std::atan(bulge / 127.0) * 180 / pi, 1e-9)
                << dx << ' ' << dy << ' ' << bulge;
            const double tolerance = 1e-11 * arc.radius;
            EXPECT_NEAR(arc.radius * (std::cos(end) - std::cos(start)), dx, tolerance);
            EXPECT_NEAR(arc.radius * (std::sin(end) - std::sin(start)), dy, tolerance);
        }
    }
}

TEST(BulgeArc, EveryTruncationIsRefused) {
    EXPECT_EQ(Decode({12}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({12, 1}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({12, 1, 2}), (Decoded{2, {}}));
    // Also where no bulge would be needed for a displacement of zero.
    EXPECT_EQ(Decode({12, 0, 0}), (Decoded{2, {}}));
}

TEST(BulgeArcs, GoOnToAPairOfZerosWithoutABulge) {
    EXPECT_EQ(Decode({13, 2, 0, 127, 3, 4, 0, 0, 0, 1}),
              (Decoded{0, {Arc(-180, 0, 1), Move(3, 4), Op(ShapeOp::PenDown)}}));
    EXPECT_EQ(Decode({13, 0, 0, 127}), (Decoded{0, {Move(7, -3.5)}})); // 127 is a vector
}

TEST(BulgeArcs, KeepWhatCameBeforeTheirMissingEnd) {
    EXPECT_EQ(Decode({13}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({13, 1}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({13, 3, 4}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({13, 3, 4, 0}), (Decoded{2, {Move(3, 4)}}));
    EXPECT_EQ(Decode({13, 3, 4, 0, 0}), (Decoded{2, {Move(3, 4)}}));
    EXPECT_EQ(Decode({13, 3, 4, 0, 0, 0}), (Decoded{0, {Move(3, 4)}}));
}

} // namespace
