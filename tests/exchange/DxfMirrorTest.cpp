// Entities whose plane is seen from behind: what they draw is that of the upright ones with x negated.
#include "drawing/entities/Areas.h"
#include "drawing/geometry/EdgeChain.h"
#include "tests/exchange/DxfFiles.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

constexpr double kOneDegree = std::numbers::pi / 180;

std::unique_ptr<drawing::Database> DrawingOf(const DxfWriter& entity) {
    diagnostics::Diagnostic fault;
    exchange::DxfNotes notes;
    auto database = exchange::ReadDxf(FileOf(entity).Ascii(), fault, notes);
    EXPECT_TRUE(notes.All().size() == 1U); // it has no unit
    return database;
}

std::vector<drawing::HatchEdge> EdgesOf(const drawing::Database& database) {
    const auto& hatch =
        static_cast<const drawing::Hatch&>(*database.FindBlock(L"B")->EntityId(0).stub()->object);
    EXPECT_EQ(hatch.Data().loops.size(), 1U);
    return hatch.Data().loops.front().edges;
}

// A hatch with an edge of each kind, head to tail: from (0, 0) over (4, 0), (6, 2), (4, 4) and (0, 4).
DxfWriter HatchOfEdges() {
    DxfWriter hatch;
    hatch.Text(0, "HATCH").Text(8, "0").Text(2, "P").Integer(70, 0).Integer(91, 1).Integer(92, 1);
    hatch.Integer(93, 5).Integer(72, 1).Point(10, 0, 0).Point(11, 4, 0);
    hatch.Integer(72, 2).Point(10, 4, 2).Number(40, 2).Number(50, 270).Number(51, 360).Integer(73, 1);
    hatch.Integer(72, 3).Point(10, 4, 2).Point(11, 2, 0).Number(40, 1).Number(50, 0).Number(51, 90);
    hatch.Integer(73, 1).Integer(72, 4).Integer(94, 1).Integer(73, 0).Integer(74, 0).Integer(95, 4);
    hatch.Integer(96, 2).Number(40, 0).Number(40, 0).Number(40, 1).Number(40, 1);
    hatch.Point(10, 4, 4).Point(10, 0, 4).Integer(97, 0);
    hatch.Integer(72, 2).Point(10, 0, 2).Number(40, 2).Number(50, 270).Number(51, 450).Integer(73, 0);
    return hatch.Integer(97, 0);
}

void ExpectEnds(const geometry::EdgeEnds& ends, double x0, double y0, double x1, double y1) {
    EXPECT_NEAR(ends.start.x, x0, 1e-12);
    EXPECT_NEAR(ends.start.y, y0, 1e-12);
    EXPECT_NEAR(ends.end.x, x1, 1e-12);
    EXPECT_NEAR(ends.end.y, y1, 1e-12);
}

TEST(DxfMirror, EdgesOfAHatchOfEveryKindAreReadAndMirrored) {
    for (const double side : {1.0, -1.0}) {
        const std::vector<drawing::HatchEdge> edges =
            EdgesOf(*DrawingOf(HatchOfEdges().Number(210, 0).Number(220, 0).Number(230, side)));
        ASSERT_EQ(edges.size(), 5U);
        ExpectEnds(geometry::EndsOf(edges[0]), 0, 0, side * 4, 0);
        ExpectEnds(geometry::EndsOf(edges[1]), side * 4, 0, side * 6, 2);
        ExpectEnds(geometry::EndsOf(edges[2]), side * 6, 2, side * 4, 4);
        ExpectEnds(geometry::EndsOf(edges[3]), side * 4, 4, 0, 4);
        ExpectEnds(geometry::EndsOf(edges[4]), 0, 4, 0, 0);
        EXPECT_EQ(std::get<OxGeCircArc2d>(edges[1]).isClockWise(), side < 0);
        EXPECT_EQ(std::get<OxGeEllipArc2d>(edges[2]).isClockWise(), side < 0);
        EXPECT_EQ(std::get<OxGeCircArc2d>(edges[4]).isClockWise(), side > 0);
        EXPECT_EQ(std::get<OxGeCircArc2d>(edges[1]).center().x, side * 4);
        EXPECT_EQ(std::get<OxGeEllipArc2d>(edges[2]).center().x, side * 4);
    }
}

// The direction of 45 degrees meets x²/16 + y²/4 = 1 where |x| = |y| = 4/√5.
TEST(DxfMirror, AClockwiseEllipseEdgeRunsThroughTheAnglesBelowItsAxis) {
    DxfWriter hatch;
    hatch.Text(0, "HATCH").Text(8, "0").Text(2, "P").Integer(70, 0).Integer(91, 1).Integer(92, 1);
    hatch.Integer(93, 1).Integer(72, 3).Point(10, 0, 0).Point(11, 4, 0).Number(40, 0.5).Number(50, 45);
    hatch.Number(51, 90).Integer(73, 0).Integer(97, 0);
    const double corner = 4 / std::sqrt(5.0);
    ExpectEnds(geometry::EndsOf(EdgesOf(*DrawingOf(hatch)).front()), corner, -corner, 0, -2);
    ExpectEnds(geometry::EndsOf(EdgesOf(*DrawingOf(hatch.Number(230, -1))).front()), -corner, -corner, 0, -2);
}

TEST(DxfMirror, OutlinesAndPatternLinesOfAHatchAreMirrored) {
    DxfWriter hatch;
    hatch.Text(0, "HATCH").Text(8, "0").Text(2, "P").Integer(70, 0).Integer(91, 1).Integer(92, 2);
    hatch.Integer(72, 1).Integer(73, 1).Integer(93, 3).Point(10, 1, 0).Number(42, 0.5).Point(10, 4, 0);
    hatch.Number(42, 1).Point(10, 4, 3).Number(42, -0.25).Integer(97, 0).Integer(75, 0).Integer(76, 1);
    hatch.Integer(78, 2).Number(53, 30).Number(43, 1).Number(44, 2).Number(45, -3).Number(46, 8);
    hatch.Integer(79, 2).Number(49, 4).Number(49, -1);
    hatch.Number(53, 90).Number(43, 5).Number(44, 0).Number(45, 2).Number(46, 0).Integer(79, 0);
    const auto angle = [](double radians) { return nlohmann::json(radians).dump(); };
    EXPECT_EQ(DocumentOfDxf(FileOf(hatch).Ascii()),
              DocumentOfJson(BlockOfJson(
                  R"({"type": "hatch", "loops": [{"vertices": [[1, 0, 0.5], [4, 0, 1], [4, 3, -0.25]]}],
                      "pattern": [{"angle": )" +
                  angle(30 * kOneDegree) + R"(, "base": [1, 2], "offset": [-3, 8], "dashes": [4, -1]},
                                  {"angle": )" +
                  angle(90 * kOneDegree) + R"(, "base": [5, 0], "offset": [2, 0], "dashes": []}]})")));
    EXPECT_EQ(DocumentOfDxf(FileOf(hatch.Number(230, -1)).Ascii()),
              DocumentOfJson(BlockOfJson(
                  R"({"type": "hatch", "loops": [{"vertices": [[-1, 0, -0.5], [-4, 0, -1], [-4, 3, 0.25]]}],
                      "pattern": [{"angle": )" +
                  angle(std::numbers::pi - 30 * kOneDegree) +
                  R"(, "base": [-1, 2], "offset": [3, 8], "dashes": [4, -1]}, {"angle": )" +
                  angle(std::numbers::pi - 90 * kOneDegree) +
                  R"(, "base": [-5, 0], "offset": [-2, 0], "dashes": []}]})")));
}

TEST(DxfMirror, PolylinesOfTheOldKindAreMirrored) {
    DxfWriter old;
    old.Text(0, "POLYLINE").Text(8, "0").Integer(66, 1).Integer(70, 129).Number(230, -1);
    old.Text(0, "VERTEX").Point(10, 1, 0).Number(42, 0.5).Text(0, "VERTEX").Point(10, 4, 0).Number(42, 0.75);
    old.Text(0, "VERTEX").Point(10, 4, 3).Number(42, -2).Text(0, "SEQEND");
    EXPECT_EQ(DocumentOfDxf(FileOf(old).Ascii()),
              DocumentOfJson(BlockOfJson(R"({"type": "polyline", "closed": true, "plinegen": true,
                                             "vertices": [[-1, 0, -0.5], [-4, 0, -0.75], [-4, 3, 2]]})")));
}

TEST(DxfMirror, TextsLieOnTheOtherSideAndRunTheOtherWay) {
    DxfWriter text;
    text.Text(0, "TEXT").Text(8, "0").Point(10, 1, 2).Number(40, 3).Text(1, "t").Number(50, 30);
    text.Integer(72, 2).Point(11, 5, 6).Number(230, -1);
    EXPECT_EQ(DocumentOfDxf(FileOf(text).Ascii()),
              DocumentOfJson(BlockOfJson(R"({"type": "text", "position": [-1, 2], "height": 3, "text": "t",
                                             "style": "STANDARD", "horizontalMode": 2,
                                             "alignmentPoint": [-5, 6], "rotation": )" +
                                         nlohmann::json(std::numbers::pi - 30 * kOneDegree).dump() + "}")));
}

// Their points are those of the drawing, whatever the plane.
TEST(DxfMirror, PointsAndLinesStayWhereTheyAre) {
    DxfWriter entities;
    entities.Text(0, "POINT").Text(8, "0").Point(10, 1, 2).Number(230, -1);
    entities.Text(0, "LINE").Text(8, "0").Point(10, 1, 2).Point(11, 3, 4).Number(230, -1);
    EXPECT_EQ(DocumentOfDxf(FileOf(entities).Ascii()),
              DocumentOfJson(BlockOfJson(R"({"type": "point", "position": [1, 2]},
                                            {"type": "line", "start": [1, 2], "end": [3, 4]})")));
}

} // namespace
