// Hatches and multi-polygons.
#include "tests/block/BlockTest.h"

#include <memory>
#include <numbers>

namespace blocktest {
namespace {

using drawing::Operation;
using Texts = std::vector<std::wstring>;

using std::numbers::pi;

using Edge = drawing::HatchEdge;

Edge Segment(const OxGePoint2d& start, const OxGePoint2d& end) {
    return OxGeLineSeg2d(start, end);
}

Edge Arc(const OxGePoint2d& center, double radius, double start, double end, bool clockwise = false) {
    return OxGeCircArc2d(center, radius, start, end, clockwise);
}

Edge Ellipse(const OxGePoint2d& center, const OxGeVector2d& major, double ratio, double start, double end,
             bool clockwise = false) {
    return OxGeEllipArc2d(center, major, ratio, start, end, clockwise);
}

template <class... Edges>
drawing::HatchLoop LoopOf(Edges... edges) {
    drawing::HatchLoop loop;
    (loop.edges.push_back(std::move(edges)), ...);
    return loop;
}

drawing::HatchLoop LoopThrough(std::vector<drawing::BulgeVertex> vertices, bool hasBulges = true) {
    drawing::HatchLoop loop;
    loop.polyline = drawing::PolylineLoop{std::move(vertices), hasBulges};
    return loop;
}

drawing::HatchLoop TriangleOfEdges(double x) {
    return LoopOf(Segment({x, 0}, {x + 3, 4}), Segment({x + 3, 4}, {x + 6, 0}), Segment({x + 6, 0}, {x, 0}));
}

class SolidHatch : public BlockTest {
protected:
    template <class... Loops>
    std::wstring Path(Loops... loops) {
        drawing::HatchData data;
        data.solid = true;
        (data.loops.push_back(std::move(loops)), ...);
        block.Add<drawing::Hatch>(Drawn(L"0", Rgb(1, 2, 3)), std::move(data));
        return Geometry();
    }
};

TEST_F(SolidHatch, PolylineLoopHasNoSegmentBackToItsStart) {
    EXPECT_EQ(Path(LoopThrough({{{0, 0}}, {{1, 0}}, {{1, 1}}, {{0, 1}}}, false)),
              L"M 0.0,0.0 L 1.0,0.0 L 1.0,1.0 L 0.0,1.0");
}

TEST_F(SolidHatch, PolylineLoopsHaveABlankBetween) {
    EXPECT_EQ(Path(LoopThrough({{{0, 0}}, {{1, 0}}, {{1, 1}}}), LoopThrough({{{5, 5}}, {{6, 5}}, {{6, 6}}})),
              L"M 0.0,0.0 L 1.0,0.0 L 1.0,1.0 M 5.0,5.0 L 6.0,5.0 L 6.0,6.0");
}

TEST_F(SolidHatch, BulgesBecomeArcs) {
    // Chord 2 with bulge 1: radius 1, a half circle that is not large. Chord 2 with -2: radius |5 x 2 / -8|,
    // large and with the sweep flag. The last vertex's bulge is not used.
    EXPECT_EQ(Path(LoopThrough({{{0, 0}, 1}, {{2, 0}, -2}, {{2, 2}, 0}, {{0, 2}, 5}})),
              L"M 0.0,0.0 A 1.0,1.0 0.0 0 0 2.0,0.0 A 1.25,1.25 0.0 1 1 2.0,2.0 L 0.0,2.0");
}

TEST_F(SolidHatch, SmallBulgeIsNotLarge) {
    // Chord 3 with 0.5: |1.25 x 3 / 2|.
    EXPECT_EQ(Path(LoopThrough({{{0, 0}, 0.5}, {{3, 0}, -0.5}, {{6, 0}}})),
              L"M 0.0,0.0 A 1.875,1.875 0.0 0 0 3.0,0.0 A 1.875,1.875 0.0 0 1 6.0,0.0");
}

TEST_F(SolidHatch, LoopOfTwoVerticesAddsNothing) {
    EXPECT_EQ(Path(LoopThrough({{{0, 0}, 1}, {{1, 0}, 1}}), LoopThrough({{{5, 5}}, {{6, 5}}, {{6, 6}}})),
              L"M 5.0,5.0 L 6.0,5.0 L 6.0,6.0");
}

TEST_F(SolidHatch, SegmentsAlongTheAxesAreShort) {
    EXPECT_EQ(Path(LoopOf(Segment({0, 0}, {10, 0}), Segment({10, 0}, {10, -4}), Segment({10, -4}, {0, 0}))),
              L"M 0.0,0.0 h 10.0 v -4.0 L 0.0,0.0");
}

TEST_F(SolidHatch, SegmentWithOneDifferenceOfExactlyTheToleranceIsLost) {
    // The pen is taken to its end all the same, so that no move follows.
    EXPECT_EQ(Path(LoopOf(Segment({0, 0}, {1e-6, 5}), Segment({1e-6, 5}, {3, 9}))), L"M 0.0,0.0 L 3.0,9.0");
}

TEST_F(SolidHatch, EdgeThatDoesNotFollowTheLastOneStartsWithAMove) {
    EXPECT_EQ(Path(LoopOf(Segment({0, 0}, {1, 2}), Segment({1, 3}, {4, 5}))),
              L"M 0.0,0.0 L 1.0,2.0 M 1.0,3.0 L 4.0,5.0");
}

TEST_F(SolidHatch, EdgesAreJoinedWithinTheTolerance) {
    // 1e-10 apart is equal; 3e-10 is not.
    EXPECT_EQ(Path(LoopOf(Segment({0, 0}, {1, 2}), Segment({1 + 0.9e-10, 2}, {4, 5}))),
              L"M 0.0,0.0 L 1.0,2.0 L 4.0,5.0");
    drawing::HatchData data;
    data.solid = true;
    data.loops.push_back(LoopOf(Segment({0, 0}, {1, 2}), Segment({1 + 3e-10, 2}, {4, 5})));
    drawing::BlockRecord& other = *database.AddBlock(L"APART");
    other.Add<drawing::Hatch>(Solid(), std::move(data));
    EXPECT_EQ(PathAt(Convert(L"APART"), 0).GetGeometry(), L"M 0.0,0.0 L 1.0,2.0 M 1.0,2.0 L 4.0,5.0");
}

TEST_F(SolidHatch, SecondEdgeLoopStandsDirectlyBehindTheFirst) {
    EXPECT_EQ(Path(TriangleOfEdges(0), TriangleOfEdges(10)),
              L"M 0.0,0.0 L 3.0,4.0 L 6.0,0.0 h -6.0M 10.0,0.0 L 13.0,4.0 L 16.0,0.0 h -6.0");
}

TEST_F(SolidHatch, EdgeLoopThatBeginsWhereTheLastOneEndedStillHasItsMove) {
    EXPECT_EQ(Path(TriangleOfEdges(0), TriangleOfEdges(0)),
              L"M 0.0,0.0 L 3.0,4.0 L 6.0,0.0 h -6.0M 0.0,0.0 L 3.0,4.0 L 6.0,0.0 h -6.0");
}

TEST_F(SolidHatch, LoopsOfBothKindsMix) {
    EXPECT_EQ(Path(LoopThrough({{{0, 0}}, {{1, 0}}, {{1, 1}}}), TriangleOfEdges(10),
                   LoopThrough({{{5, 5}}, {{6, 5}}, {{6, 6}}})),
              L"M 0.0,0.0 L 1.0,0.0 L 1.0,1.0M 10.0,0.0 L 13.0,4.0 L 16.0,0.0 h -6.0 M 5.0,5.0 L 6.0,5.0 L "
              L"6.0,6.0");
}

TEST_F(SolidHatch, ArcEdges) {
    // A quarter counter-clockwise, a half clockwise: its points are mirrored.
    EXPECT_EQ(Path(LoopOf(Arc({0, 0}, 2, 0, pi / 2))), L"M 2.0,0.0 A 2.0,2.0 0.0 0 0 0.0,2.0");
}

TEST_F(SolidHatch, ClockwiseArcEdge) {
    EXPECT_EQ(Path(LoopOf(Arc({5, 5}, 2, 0, pi, true))), L"M 7.0,5.0 A 2.0,2.0 0.0 1 1 3.0,5.0");
}

TEST_F(SolidHatch, ArcEdgeWhoseEndIsBelowItsStartRunsThroughAFullTurn) {
    // From 270 to 45 degrees is 135; the other way round 225.
    EXPECT_EQ(Path(LoopOf(Arc({5, 5}, 2, 1.5 * pi, 0))), L"M 5.0,3.0 A 2.0,2.0 0.0 0 0 7.0,5.0");
    drawing::HatchData data;
    data.solid = true;
    data.loops.push_back(LoopOf(Arc({5, 5}, 2, pi / 2, 0)));
    drawing::BlockRecord& other = *database.AddBlock(L"LONG");
    other.Add<drawing::Hatch>(Solid(), std::move(data));
    EXPECT_EQ(PathAt(Convert(L"LONG"), 0).GetGeometry(), L"M 5.0,7.0 A 2.0,2.0 0.0 1 0 7.0,5.0");
}

TEST_F(SolidHatch, ClosedCircleEdgeIsTwoHalves) {
    EXPECT_EQ(Path(LoopOf(Arc({0, 0}, 1, 0, 2 * pi))),
              L"M -1.0,0.0 A 1.0,1.0 0.0 1 1 1.0,0.0 A 1.0,1.0 0.0 1 1 -1.0,0.0");
}

TEST_F(SolidHatch, ClosedCircleThatBeginsWhereTheLastEdgeEndedHasNoMove) {
    EXPECT_EQ(Path(LoopOf(Segment({-5, 3}, {-1, 0}), Arc({0, 0}, 1, 0, 2 * pi), Arc({9, 0}, 1, 0, 2 * pi))),
              L"M -5.0,3.0 L -1.0,0.0 A 1.0,1.0 0.0 1 1 1.0,0.0 A 1.0,1.0 0.0 1 1 -1.0,0.0"
              L" M 8.0,0.0 A 1.0,1.0 0.0 1 1 10.0,0.0 A 1.0,1.0 0.0 1 1 8.0,0.0");
}

TEST_F(SolidHatch, ClosedEdgeEndsWhereItBegan) {
    EXPECT_EQ(Path(LoopOf(Arc({0, 0}, 1, 0, 2 * pi), Segment({-1, 0}, {5, 5}))),
              L"M -1.0,0.0 A 1.0,1.0 0.0 1 1 1.0,0.0 A 1.0,1.0 0.0 1 1 -1.0,0.0 L 5.0,5.0");
}

TEST_F(SolidHatch, EdgesJoinBehindArcsAsBehindSegments) {
    EXPECT_EQ(Path(LoopOf(Arc({0, 0}, 2, pi, 1.5 * pi), Segment({0, -2}, {3, 1}),
                          Ellipse({3, 2}, {2, 0}, 0.5, 1.5 * pi, 2 * pi), Segment({5, 2}, {7, 7}))),
              L"M -2.0,0.0 A 2.0,2.0 0.0 0 0 -0.0,-2.0 L 3.0,1.0 A 2.0,1.0 0.0 0 0 5.0,2.0 L 7.0,7.0");
}

TEST_F(SolidHatch, EllipseEdgesAreWrittenAsIfTheirMajorAxisLayHorizontal) {
    // The major axis is upright: from (1, 6) to (-1, 2) in drawing axes, counter-clockwise.
    EXPECT_EQ(Path(LoopOf(Ellipse({1, 2}, {0, 4}, 0.5, 0, pi / 2))), L"M 1.0,6.0 A 4.0,2.0 0.0 0 0 -1.0,2.0");
}

TEST_F(SolidHatch, ClosedEllipseEdgeIsTwoHalves) {
    EXPECT_EQ(Path(LoopOf(Ellipse({1, 2}, {0, 4}, 0.5, 0, 2 * pi))),
              L"M -3.0,2.0 A 4.0,2.0 0.0 1 1 5.0,2.0 A 4.0,2.0 0.0 1 1 -3.0,2.0");
}

TEST_F(SolidHatch, ClockwiseEllipseEdgeOfExactlyHalfATurnIsLarge) {
    EXPECT_EQ(Path(LoopOf(Ellipse({1, 2}, {4, 0}, 0.5, 0, pi, true))),
              L"M 5.0,2.0 A 4.0,2.0 0.0 1 1 -3.0,2.0");
}

Edge SplineEdge() {
    OxGePoint2dArray points;
    points.append({0, 0});
    points.append({1, 1});
    points.append({2, 0});
    return std::make_shared<const OxGeNurbCurve2d>(points);
}

TEST_F(SolidHatch, SplineEdgeIsSkippedAndTheFirstEdgeIsTheFirstWritten) {
    EXPECT_EQ(Path(TriangleOfEdges(0),
                   LoopOf(SplineEdge(), Segment({1, 2}, {3, 4}), SplineEdge(), Segment({3, 4}, {5, 7}))),
              L"M 0.0,0.0 L 3.0,4.0 L 6.0,0.0 h -6.0M 1.0,2.0 L 3.0,4.0 L 5.0,7.0");
}

TEST_F(SolidHatch, LoopThatCannotBeReadIsSkipped) {
    // Loop 0 is asked for its edges, then for its vertices.
    database.Failures().Fail(Operation::kGetEdgeLoopAt, 1, Oxsys::eInvalidInput);
    EXPECT_EQ(Path(TriangleOfEdges(0), TriangleOfEdges(10)), L"M 10.0,0.0 L 13.0,4.0 L 16.0,0.0 h -6.0");
}

TEST_F(SolidHatch, LoopIsAskedForItsEdgesFirstAndForItsVerticesOnlyWithoutThem) {
    Path(TriangleOfEdges(0));
    EXPECT_EQ(database.Failures().Calls(Operation::kGetEdgeLoopAt), 1U);
    EXPECT_EQ(database.Failures().Calls(Operation::kGetPolylineLoopAt), 0U);
}

TEST_F(SolidHatch, PathHasAFillAndNothingElse) {
    Path(TriangleOfEdges(0));
    const Symbol symbol = Convert();
    const TylModel::Path& path = PathAt(symbol, 0);
    EXPECT_EQ(path.GetFillColor(), L"ff010203");
    EXPECT_EQ(path.GetLineColor(), L"");
    EXPECT_EQ(path.GetLineWeight(), L"");
    EXPECT_EQ(path.GetLineWeightScalable(), L"");
}

TEST_F(SolidHatch, WithoutAPathAddsItsColourParameterOnly) {
    drawing::HatchData data;
    data.solid = true;
    block.Add<drawing::Hatch>(Drawn(L"0", ByLayer(), -1), std::move(data));
    const Symbol symbol = Convert();
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 0);
    EXPECT_EQ(Identifiers(symbol), (Texts{L"COLORBYLAYER0", L"ROTATION"}));
}

class PatternHatch : public BlockTest {
protected:
    void Add(std::optional<std::vector<drawing::HatchLine>> lines) {
        drawing::HatchData data;
        data.lines = std::move(lines);
        block.Add<drawing::Hatch>(Drawn(L"0", ByLayer(), -1), std::move(data));
    }
};

TEST_F(PatternHatch, IsOneStrokedPathOfItsLines) {
    Add(std::vector<drawing::HatchLine>{{{0, 0}, {5, 0}}, {{0, 1}, {5, 1}}});
    const Symbol symbol = Convert();
    const TylModel::Path& path = PathAt(symbol, 0);
    EXPECT_EQ(path.GetGeometry(), L"M 0.0,0.0 L 5.0,0.0 M 0.0,1.0 L 5.0,1.0");
    EXPECT_EQ(path.GetLineColor(), L"%COLORBYLAYER0%");
    EXPECT_EQ(path.GetFillColor(), L"");
    EXPECT_EQ(path.GetLineWeight(), L"");
    EXPECT_EQ(path.GetLineWeightScalable(), L"");
}

TEST_F(PatternHatch, LineThatCannotBeReadIsSkipped) {
    Add(std::vector<drawing::HatchLine>{{{0, 0}, {5, 0}}, {{0, 1}, {5, 1}}, {{0, 2}, {5, 2}}});
    database.Failures().Fail(Operation::kGetHatchLineDataAt, 2, Oxsys::eInvalidIndex);
    EXPECT_EQ(Geometry(), L"M 0.0,0.0 L 5.0,0.0 M 0.0,2.0 L 5.0,2.0");
    database.Failures().Clear();
    database.Failures().Fail(Operation::kGetHatchLineDataAt, 1, Oxsys::eInvalidIndex);
    EXPECT_EQ(Geometry(), L"M 0.0,1.0 L 5.0,1.0 M 0.0,2.0 L 5.0,2.0");
}

TEST_F(PatternHatch, WithoutALineThatCanBeReadAddsItsColourParameterOnly) {
    Add(std::vector<drawing::HatchLine>{{{0, 0}, {5, 0}}});
    database.Failures().Fail(Operation::kGetHatchLineDataAt, 1, Oxsys::eInvalidIndex);
    const Symbol symbol = Convert();
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 0);
    EXPECT_EQ(Identifiers(symbol), (Texts{L"COLORBYLAYER0", L"ROTATION"}));
}

TEST_F(PatternHatch, ThatCannotBeEvaluatedOrHasNoLinesAddsNothingAtAll) {
    Add(std::nullopt);
    Add(std::vector<drawing::HatchLine>{});
    Symbol symbol = Convert();
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 0);
    EXPECT_EQ(Identifiers(symbol), Texts{L"ROTATION"});
    Add(std::vector<drawing::HatchLine>{{{0, 0}, {5, 0}}});
    database.Failures().Fail(Operation::kEvaluateHatch, 0, Oxsys::eTooManyHatchLines);
    symbol = Convert();
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 0);
    EXPECT_EQ(Identifiers(symbol), Texts{L"ROTATION"});
}

class MPolygon : public BlockTest {
protected:
    void Add(std::vector<drawing::PolylineLoop> loops, const OxCmColor& fill, const OxCmColor& line,
             std::int32_t weight) {
        block.Add<drawing::MPolygon>(Drawn(L"0", line, weight), std::move(loops), fill);
    }
};

TEST_F(MPolygon, IsOnePathThatIsFilledAndStroked) {
    Add({{{{{0, 0}, 1}, {{2, 0}}, {{2, 2}}}, true}, {{{{5, 5}}, {{6, 5}}, {{6, 6}}}, false}}, Rgb(1, 2, 3),
        Rgb(4, 5, 6), 25);
    const Symbol symbol = Convert();
    const TylModel::Path& path = PathAt(symbol, 0);
    EXPECT_EQ(path.GetGeometry(),
              L"M 0.0,0.0 A 1.0,1.0 0.0 0 0 2.0,0.0 L 2.0,2.0 M 5.0,5.0 L 6.0,5.0 L 6.0,6.0");
    EXPECT_EQ(path.GetFillColor(), L"ff010203");
    EXPECT_EQ(path.GetLineColor(), L"ff040506");
    EXPECT_EQ(path.GetLineWeight(), L"0.5");
    EXPECT_EQ(path.GetLineWeightScalable(), L"false");
}

TEST_F(MPolygon, LoopsOfTwoVerticesAndThoseThatCannotBeReadAddNothing) {
    const drawing::PolylineLoop triangle{{{{0, 0}}, {{1, 0}}, {{1, 1}}}, false};
    Add({{{{{0, 0}}, {{1, 0}}}, false}, triangle, triangle}, Rgb(0, 0, 0), Rgb(0, 0, 0), 0);
    database.Failures().Fail(Operation::kGetMPolygonLoopAt, 3, Oxsys::eInvalidIndex);
    EXPECT_EQ(Geometry(), L"M 0.0,0.0 L 1.0,0.0 L 1.0,1.0");
}

TEST_F(MPolygon, WithoutAPathAddsItsParametersFillFirst) {
    database.AddBlock(L"HOST")->Add<drawing::BlockReference>(Drawn(L"0", Index(1)), L"B");
    Add({}, ByBlock(), ByLayer(), -1);
    const Symbol symbol = Convert();
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 0);
    EXPECT_EQ(Identifiers(symbol), (Texts{L"COLORBYBLOCKB", L"COLORBYLAYER0", L"LWBYLAYER0", L"ROTATION"}));
}

} // namespace
} // namespace blocktest
