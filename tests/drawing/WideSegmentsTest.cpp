// The areas that segments of a polyline with a width cover.
#include "drawing/entities/WideSegments.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

using drawing::OutlinesOf;
using drawing::SegmentOutline;
using drawing::SegmentWidth;
using geometry::BulgeVertex;

std::vector<BulgeVertex> Straight(const std::vector<OxGePoint2d>& points) {
    std::vector<BulgeVertex> vertices;
    for (const OxGePoint2d& point : points) {
        vertices.push_back({point, 0.0});
    }
    return vertices;
}

std::vector<SegmentWidth> Same(std::size_t count, double width) {
    return std::vector<SegmentWidth>(count, SegmentWidth{width, width});
}

double AreaOf(const SegmentOutline& outline) {
    double twice = 0.0;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const OxGePoint2d& from = outline[i].point;
        const OxGePoint2d& to = outline[(i + 1) % outline.size()].point;
        twice += from.x * to.y - to.x * from.y;
        // The segment of a circle between an arc and its chord.
        const double sweep = 4.0 * std::atan(outline[i].bulge);
        const double radius =
            sweep == 0.0 ? 0.0 : std::hypot(to.x - from.x, to.y - from.y) / 2.0 / std::sin(sweep / 2.0);
        twice += radius * radius * (sweep - std::sin(sweep));
    }
    return std::fabs(twice) / 2.0;
}

void ExpectOutline(const SegmentOutline& outline, const std::vector<OxGePoint2d>& expected) {
    ASSERT_EQ(outline.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(outline[i].point.x, expected[i].x, 1e-12) << i;
        EXPECT_NEAR(outline[i].point.y, expected[i].y, 1e-12) << i;
        EXPECT_EQ(outline[i].bulge, 0.0) << i;
    }
}

TEST(WideSegments, ASegmentIsARectangleOrTapers) {
    const std::vector<BulgeVertex> line = Straight({{0, 0}, {10, 0}});
    ExpectOutline(OutlinesOf(line, {{2, 2}}, false)[0], {{0, 1}, {10, 1}, {10, -1}, {0, -1}});
    ExpectOutline(OutlinesOf(line, {{4, 0}}, false)[0], {{0, 2}, {10, 0}, {10, 0}, {0, -2}});
}

TEST(WideSegments, NeighboursMeetInAMitre) {
    const auto outlines = OutlinesOf(Straight({{0, 0}, {10, 0}, {10, 10}}), Same(3, 2), false);
    ASSERT_EQ(outlines.size(), 2U);
    ExpectOutline(outlines[0], {{0, 1}, {9, 1}, {11, -1}, {0, -1}});
    ExpectOutline(outlines[1], {{9, 1}, {9, 10}, {11, 10}, {11, -1}});
}

TEST(WideSegments, AClosedPolylineMeetsItself) {
    const auto outlines = OutlinesOf(Straight({{0, 0}, {10, 0}, {10, 10}, {0, 10}}), Same(4, 2), true);
    ASSERT_EQ(outlines.size(), 4U);
    double area = 0.0;
    for (const SegmentOutline& outline : outlines) {
        area += AreaOf(outline);
    }
    EXPECT_NEAR(area, 12.0 * 12.0 - 8.0 * 8.0, 1e-9);
}

TEST(WideSegments, NeighboursThatTurnBackOrDifferInWidthEndBluntly) {
    const auto back = OutlinesOf(Straight({{0, 0}, {10, 0}, {0, 0.1}}), Same(3, 2), false);
    ExpectOutline(back[0], {{0, 1}, {10, 1}, {10, -1}, {0, -1}});
    const auto step = OutlinesOf(Straight({{0, 0}, {10, 0}, {10, 10}}), {{2, 2}, {4, 4}, {}}, false);
    ExpectOutline(step[0], {{0, 1}, {10, 1}, {10, -1}, {0, -1}});
    // A mitre of the short segment would be longer than it is.
    const auto thick = OutlinesOf(Straight({{0, 0}, {10, 0}, {10, 1}}), Same(3, 6), false);
    ExpectOutline(thick[0], {{0, 3}, {10, 3}, {10, -3}, {0, -3}});
}

TEST(WideSegments, AnArcIsABandOfTwoArcs) {
    // A half circle of the radius 5, counter-clockwise below its chord; on its left is its inner edge.
    const auto outlines = OutlinesOf({{{-5, 0}, 1.0}, {{5, 0}, 0.0}}, Same(2, 2), false);
    ASSERT_EQ(outlines.size(), 1U);
    const SegmentOutline expected = {{{-4, 0}, 1.0}, {{4, 0}, 0.0}, {{6, 0}, -1.0}, {{-6, 0}, 0.0}};
    ASSERT_EQ(outlines[0].size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(outlines[0][i].point.x, expected[i].point.x, 1e-12) << i;
        EXPECT_NEAR(outlines[0][i].point.y, expected[i].point.y, 1e-12) << i;
        EXPECT_NEAR(outlines[0][i].bulge, expected[i].bulge, 1e-12) << i;
    }
    EXPECT_NEAR(AreaOf(outlines[0]), std::numbers::pi * (36.0 - 16.0) / 2.0, 1e-9);
}

TEST(WideSegments, ABandThatWidensAlongAnArcFollowsItsSpirals) {
    // Half of the width grows from 0 to 2 while the arc of the radius 5 turns by half of a circle.
    const auto outlines = OutlinesOf({{{-5, 0}, 1.0}, {{5, 0}, 0.0}}, {{0, 4}, {}}, false);
    ASSERT_EQ(outlines.size(), 1U);
    // The integral of ((5 + 2 a / pi)² - (5 - 2 a / pi)²) / 2 over the angle a.
    EXPECT_NEAR(AreaOf(outlines[0]), 10.0 * std::numbers::pi, 1e-6);
    for (const BulgeVertex& vertex : outlines[0]) {
        const double part =
            (std::numbers::pi + std::atan2(vertex.point.y, vertex.point.x)) / std::numbers::pi;
        const double half = std::fabs(std::hypot(vertex.point.x, vertex.point.y) - 5.0);
        EXPECT_NEAR(half, 2.0 * std::fmod(part, 2.0), 1e-9);
    }
}

TEST(WideSegments, AnArcMeetsALineInAMitre) {
    // Up along x = 0, then, at a right angle, along an arc that begins in the direction +x and turns left.
    const double quarter = std::tan(std::numbers::pi / 8.0);
    const auto outlines = OutlinesOf({{{0, -10}, 0.0}, {{0, 0}, quarter}, {{5, 5}, 0.0}}, Same(3, 2), false);
    ASSERT_EQ(outlines.size(), 2U);
    ExpectOutline(outlines[0], {{-1, -10}, {-1, 1}, {1, -1}, {1, -10}});
    // The centre is at (0, 5). On the left the mitre lengthens the edge of the radius 4 along the tangent; on
    // the right it cuts away the piece of the edge of the radius 6 up to the corner.
    const SegmentOutline& arc = outlines[1];
    ASSERT_EQ(arc.size(), 6U);
    const OxGePoint2d corners[] = {{-1, 1}, {0, 1}, {4, 5}, {6, 5}, {arc[4].point.x, arc[4].point.y},
                                   {1, -1}};
    for (std::size_t i = 0; i < arc.size(); ++i) {
        EXPECT_NEAR(arc[i].point.x, corners[i].x, 1e-12) << i;
        EXPECT_NEAR(arc[i].point.y, corners[i].y, 1e-12) << i;
    }
    EXPECT_NEAR(arc[1].bulge, quarter, 1e-12);
    EXPECT_NEAR(std::hypot(arc[4].point.x, arc[4].point.y - 5.0), 6.0, 1e-12);
    EXPECT_NEAR(std::atan2(arc[4].point.x, 5.0 - arc[4].point.y), std::asin(1.0 / std::hypot(1.0, 6.0)),
                1e-12);
    const double left = std::numbers::pi / 2.0 - std::asin(1.0 / std::hypot(1.0, 6.0));
    EXPECT_NEAR(arc[3].bulge, -std::tan(left / 4.0), 1e-12);
}

TEST(WideSegments, AWidthBeyondTheCentreOfAnArcStaysABand) {
    // The edge of the radius 1 - 3 runs on the other side of the centre.
    const auto outlines = OutlinesOf({{{-1, 0}, 1.0}, {{1, 0}, 0.0}}, Same(2, 6), false);
    ASSERT_EQ(outlines[0].size(), 4U);
    EXPECT_NEAR(outlines[0][0].point.x, 2.0, 1e-12);
    EXPECT_NEAR(outlines[0][0].bulge, 1.0, 1e-12);
    EXPECT_NEAR(outlines[0][2].point.x, 4.0, 1e-12);
    EXPECT_NEAR(outlines[0][2].bulge, -1.0, 1e-12);
}

TEST(WideSegments, WhatHasNoWidthOrNoLengthCoversNothing) {
    const auto outlines =
        OutlinesOf(Straight({{0, 0}, {1, 0}, {1, 0}, {2, 0}}), {{0, 0}, {2, 2}, {0, 1}, {}}, false);
    ASSERT_EQ(outlines.size(), 3U);
    EXPECT_TRUE(outlines[0].empty());
    EXPECT_TRUE(outlines[1].empty());
    EXPECT_FALSE(outlines[2].empty());
    EXPECT_TRUE(OutlinesOf({}, {}, true).empty());
}

} // namespace
