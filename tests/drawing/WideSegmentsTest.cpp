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
        const OxGePoint2d& from = outline[i];
        const OxGePoint2d& to = outline[(i + 1) % outline.size()];
        twice += from.x * to.y - to.x * from.y;
    }
    return std::fabs(twice) / 2.0;
}

void ExpectOutline(const SegmentOutline& outline, const std::vector<OxGePoint2d>& expected) {
    ASSERT_EQ(outline.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(outline[i].x, expected[i].x, 1e-12) << i;
        EXPECT_NEAR(outline[i].y, expected[i].y, 1e-12) << i;
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

TEST(WideSegments, AnArcIsABandAlongIt) {
    // A half circle of the radius 5.
    const auto outlines = OutlinesOf({{{-5, 0}, 1.0}, {{5, 0}, 0.0}}, Same(2, 2), false);
    ASSERT_EQ(outlines.size(), 1U);
    // 64 chords of equal length on either side.
    EXPECT_NEAR(AreaOf(outlines[0]), 64.0 * std::sin(std::numbers::pi / 64.0) * (36.0 - 16.0) / 2.0, 1e-9);
    for (const OxGePoint2d& corner : outlines[0]) {
        const double radius = std::hypot(corner.x, corner.y);
        EXPECT_NEAR(radius, radius > 5.0 ? 6.0 : 4.0, 1e-9);
        EXPECT_LT(corner.y, 1e-9); // it runs counter-clockwise, below its chord
    }
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
