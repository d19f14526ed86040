// Arcs: their flags, where they are split, where they end.
#include "tests/shx/Decoding.h"
#include "tests/shx/Drawing.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

using namespace ShxUtility;

using std::numbers::pi;

Drawing Drawn(const test_support::Bytes& program, double rotation = 0.0, double scale = 1.0) {
    Drawing drawing;
    drawing.rotation = rotation;
    drawing.scale = scale;
    EXPECT_EQ(drawing.DrawProgram(program), 0);
    return drawing;
}

std::string TextOfArc(double start, double end, double rotation = 0.0) {
    Drawing drawing;
    drawing.rotation = rotation;
    EXPECT_EQ(drawing.Draw({Arc(start, end, 1)}), 0);
    return drawing.Text();
}

std::size_t ArcsIn(const std::string& text) {
    std::size_t count = 0;
    for (const char character : text) {
        count += character == 'A' ? 1 : 0;
    }
    return count;
}

// The flags of the last arc of a path: "large sweep".
std::string LastFlags(const std::string& text) {
    const std::size_t rotation = text.find(" 0 ", text.rfind('A'));
    return text.substr(rotation + 3, 3);
}

TEST(DrawArc, AQuarterCircle) {
    // From the rightmost point of the circle round (-10, 0) up to its top at (-10, 10).
    EXPECT_EQ(Drawn({10, 10, 0x02}).Text(), "M 0,0 A 10,10 0 0 0 -10,10 ");
    // The same clockwise ends at the bottom.
    EXPECT_EQ(Drawn({10, 10, 0x82}).Text(), "M 0,0 A 10,10 0 0 1 -10,-10 ");
}

TEST(DrawArc, AFullCircleIsTwoHalves) {
    // sin(pi) is 1.2246467991473532e-16 and sin(2 pi) twice that, negative, so the end lies at
    // 1.22e-16 + (-2.45e-16 - 1.22e-16) instead of 0.
    EXPECT_EQ(Drawn({10, 1, 0x00}).Text(), "M 0,0 A 1,1 0 0 0 -2,1.22464679914735e-16 "
                                           "M -2,1.22464679914735e-16 A 1,1 0 0 0 0,-2.44929359829471e-16 ");
}

TEST(DrawArc, AClockwiseHalfCircleIsOneArc) {
    EXPECT_EQ(Drawn({10, 1, 0x8c}).Text(), "M 0,0 A 1,1 0 0 1 -2,-1.22464679914735e-16 ");
}

TEST(DrawArc, EveryOctantArcEndsWhereItsAnglesSay) {
    // The unit circle's points at 0, 45, 90, ... degrees.
    const double half = std::sqrt(0.5);
    const double xs[] = {1, half, 0, -half, -1, -half, 0, half};
    const double ys[] = {0, half, 1, half, 0, -half, -1, -half};
    for (int octants = 0; octants <= 255; ++octants) {
        const int start = octants / 16 % 8;
        const int span = octants % 8;
        const int end = (start + (octants >= 128 ? 8 - span : span)) % 8;
        const Drawing drawing = Drawn({10, 20, static_cast<std::uint8_t>(octants)});
        EXPECT_NEAR(drawing.x, 20 * (xs[end] - xs[start]), 1e-13) << octants;
        EXPECT_NEAR(drawing.y, 20 * (ys[end] - ys[start]), 1e-13) << octants;
    }
}

TEST(DrawArc, OctantArcsWorkedOutByHand) {
    // From 45 to 180 degrees on a circle of radius 10: 10 (cos 180 - cos 45) = -17.0710678,
    // 10 (sin 180 - sin 45) = -7.0710678.
    Drawing drawing = Drawn({10, 10, 0x13});
    EXPECT_NEAR(drawing.x, -17.071067811865476, 1e-13);
    EXPECT_NEAR(drawing.y, -7.0710678118654755, 1e-13);
    EXPECT_EQ(LastFlags(drawing.Text()), "0 0");
    // Clockwise from 45 to -90: 10 (cos -90 - cos 45) = -7.0710678, 10 (sin -90 - sin 45) = -17.0710678.
    drawing = Drawn({10, 10, 0x93});
    EXPECT_NEAR(drawing.x, -7.0710678118654755, 1e-13);
    EXPECT_NEAR(drawing.y, -17.071067811865476, 1e-13);
    EXPECT_EQ(LastFlags(drawing.Text()), "0 1");
    // Five octants from 0 to 225 are a large arc in one piece, seven from 0 to 315 two pieces.
    drawing = Drawn({10, 10, 0x05});
    EXPECT_EQ(ArcsIn(drawing.Text()), 1U);
    EXPECT_EQ(LastFlags(drawing.Text()), "1 0");
    drawing = Drawn({10, 10, 0x07});
    EXPECT_EQ(ArcsIn(drawing.Text()), 2U);
    EXPECT_EQ(LastFlags(drawing.Text()), "0 0");
}

TEST(DrawArc, FractionalArcsWorkedOutByHand) {
    // Offsets 56 and 28 are 10 and 5 degrees, radius 100, start octant 1, span 2: from 55 to 95 degrees.
    // 100 (cos 95 - cos 55) = -8.7155743 - 57.3576436, 100 (sin 95 - sin 55) = 99.6194698 - 81.9152044.
    Drawing drawing = Drawn({11, 56, 28, 0, 100, 0x12});
    EXPECT_NEAR(drawing.x, -66.0732179, 1e-7);
    EXPECT_NEAR(drawing.y, 17.7042654, 1e-7);
    EXPECT_EQ(LastFlags(drawing.Text()), "0 0");
    // Clockwise the offsets are added as well: from 55 to (1 - 2 + 1) * 45 + 5 = 5 degrees.
    // 100 (cos 5 - cos 55) = 99.6194698 - 57.3576436, 100 (sin 5 - sin 55) = 8.7155743 - 81.9152044.
    drawing = Drawn({11, 56, 28, 0, 100, 0x92});
    EXPECT_NEAR(drawing.x, 42.2618262, 1e-7);
    EXPECT_NEAR(drawing.y, -73.1996301, 1e-7);
    EXPECT_EQ(LastFlags(drawing.Text()), "0 1");
    // Radius 1 * 256 + 44 = 300, all round clockwise from 90: back where it was, in two clockwise halves.
    drawing = Drawn({11, 0, 0, 1, 44, 0xa0});
    EXPECT_NEAR(drawing.x, 0, 1e-12);
    EXPECT_NEAR(drawing.y, 0, 1e-12);
    EXPECT_EQ(ArcsIn(drawing.Text()), 2U);
    EXPECT_EQ(LastFlags(drawing.Text()), "0 1");
}

TEST(DrawArc, ABulgeArcEndsAtItsDisplacement) {
    // A half circle counter-clockwise from (0, 0) to (2, 0): through (1, -1).
    Drawing drawing = Drawn({12, 2, 0, 127});
    EXPECT_NEAR(drawing.x, 2, 1e-15);
    EXPECT_NEAR(drawing.y, 0, 1e-15);
    EXPECT_EQ(LastFlags(drawing.Text()), "0 0");
    drawing = Drawn({12, 2, 0, 0x81});
    EXPECT_NEAR(drawing.x, 2, 1e-15);
    EXPECT_EQ(LastFlags(drawing.Text()), "0 1");
    EXPECT_EQ(Drawn({12, 3, 4, 0}).Text(), "M 0,0 l 3,4 ");
}

TEST(DrawArc, BulgeArcsFollowOneAnother) {
    const Drawing drawing = Drawn({13, 2, 0, 127, 0, 4, 50, 3, 3, 0, 0, 0});
    EXPECT_NEAR(drawing.x, 5, 1e-14);
    EXPECT_NEAR(drawing.y, 7, 1e-14);
    EXPECT_EQ(ArcsIn(drawing.Text()), 2U);
}

TEST(DrawArc, ThePenDoesNotMatter) {
    EXPECT_EQ(Drawn({2, 10, 10, 0x02}).Text(), "M 0,0 A 10,10 0 0 0 -10,10 ");
    EXPECT_EQ(Drawn({2, 12, 3, 4, 0}).Text(), "");
}

TEST(DrawArc, ScaleActsOnTheRadius) {
    EXPECT_EQ(Drawn({10, 10, 0x02}, 0, 0.25).Text(), "M 0,0 A 2.5,2.5 0 0 0 -2.5,2.5 ");
    // A negative scale draws a negative radius.
    EXPECT_EQ(Drawn({10, 10, 0x02}, 0, -1).Text(), "M 0,0 A -10,-10 0 0 0 10,-10 ");
}

TEST(DrawArc, RotationIsAddedToBothAngles) {
    // From 30 to 120 degrees: 10 (cos 120 - cos 30) = -5 - 8.6602540, 10 (sin 120 - sin 30) = 8.6602540 - 5.
    const Drawing drawing = Drawn({10, 10, 0x02}, 30);
    EXPECT_NEAR(drawing.x, -13.660254037844386, 1e-13);
    EXPECT_NEAR(drawing.y, 3.6602540378443864, 1e-13);
}

TEST(DrawArc, LargeIsBeyond180AndSweepBelowZero) {
    struct Row {
        double start;
        double end;
        const char* flags;
    };
    const Row rows[] = {{0, 1, "0 0"},   {0, 180, "0 0"},  {0, 181, "1 0"},  {0, 269, "1 0"},
                        {0, -1, "0 1"},  {0, -180, "0 1"}, {0, -181, "1 1"}, {0, -269, "1 1"},
                        {10, 10, "0 0"}, {90, 45, "0 1"},  {-90, 100, "1 0"}};
    for (const Row& row : rows) {
        const std::string text = TextOfArc(row.start, row.end);
        EXPECT_EQ(ArcsIn(text), 1U) << row.end;
        EXPECT_EQ(LastFlags(text), row.flags) << row.start << ' ' << row.end;
    }
}

TEST(DrawArc, SplitsFrom270DegreesOn) {
    EXPECT_EQ(ArcsIn(TextOfArc(0, 269.999)), 1U);
    EXPECT_EQ(ArcsIn(TextOfArc(0, 270)), 2U);
    EXPECT_EQ(ArcsIn(TextOfArc(0, -269.999)), 1U);
    EXPECT_EQ(ArcsIn(TextOfArc(0, -270)), 2U);
    // From 0 to 180 without the large flag, and the remaining 90 degrees.
    EXPECT_EQ(TextOfArc(0, -270), "M 0,0 A 1,1 0 0 1 -2,-1.22464679914735e-16 "
                                  "M -2,-1.22464679914735e-16 A 1,1 0 0 1 -1,1 ");
}

TEST(DrawArc, SplitsOnceOnly) {
    // 720 degrees: a half circle and then one of 540 degrees, which is large.
    const std::string text = TextOfArc(0, 720);
    EXPECT_EQ(ArcsIn(text), 2U);
    EXPECT_EQ(LastFlags(text), "1 0");
}

TEST(DrawArc, WhetherToSplitIsAskedAfterRotation) {
    // 270 + 242.3 is beyond 512, where doubles are further apart; less 242.3 it falls short of 270: not
    // split, but large.
    const double rotation = 242.3;
    ASSERT_LT((270 + rotation) - (0 + rotation), 270);
    const std::string text = TextOfArc(0, 270, rotation);
    EXPECT_EQ(ArcsIn(text), 1U);
    EXPECT_EQ(LastFlags(text), "1 0");
    // And below 270 it may come out as 270.
    const double up = 64.4;
    const double below = std::nextafter(270.0, 0.0);
    ASSERT_GE((below + up) - (0 + up), 270);
    EXPECT_EQ(ArcsIn(TextOfArc(0, below, up)), 2U);
}

TEST(DrawArc, TheEndIsSummedFromTheCurrentPoint) {
    Drawing drawing;
    drawing.x = 0.1;
    drawing.y = 0.7;
    EXPECT_EQ(drawing.Draw({Arc(10, 50, 3)}), 0);
    const double start = 10 * pi / 180;
    const double end = 50 * pi / 180;
    EXPECT_EQ(drawing.x, 0.1 + 3 * (std::cos(end) - std::cos(start)));
    EXPECT_EQ(drawing.y, 0.7 + 3 * (std::sin(end) - std::sin(start)));
}

} // namespace
