// Hatches of a drawing: loops and the lines of patterns. (The cutting itself is tested with the geometry.)
#include "drawing/entities/Areas.h"
#include "tests/drawing/OpenedObjects.h"

#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

class Hatches : public testing::Test {
protected:
    drawing::Hatch& Add(drawing::HatchData data) { return block->Add<drawing::Hatch>({}, std::move(data)); }

    drawing::Database database;
    drawing::BlockRecord* block = database.AddBlock(L"B");
};

drawing::HatchLoop Square(double size) {
    drawing::HatchLoop loop;
    loop.polyline =
        drawing::PolylineLoop{{{{0, 0}, 0}, {{size, 0}, 0}, {{size, size}, 0}, {{0, size}, 0}}, false};
    return loop;
}

std::vector<drawing::HatchLine> LinesOf(drawing::Hatch& hatch) {
    EXPECT_EQ(hatch.evaluateHatch(true), Oxsys::eOk);
    std::vector<drawing::HatchLine> lines;
    for (int index = 0; index < hatch.numHatchLines(); ++index) {
        drawing::HatchLine line;
        EXPECT_EQ(hatch.getHatchLineDataAt(index, line.start, line.end), Oxsys::eOk);
        lines.push_back(line);
    }
    return lines;
}

void ExpectLine(const drawing::HatchLine& line, OxGePoint2d start, OxGePoint2d end) {
    EXPECT_NEAR(line.start.x, start.x, 1e-12);
    EXPECT_NEAR(line.start.y, start.y, 1e-12);
    EXPECT_NEAR(line.end.x, end.x, 1e-12);
    EXPECT_NEAR(line.end.y, end.y, 1e-12);
}

TEST_F(Hatches, AFamilyIsCutToAPolylineLoop) {
    drawing::HatchData data;
    data.loops.push_back(Square(2.0));
    data.pattern = {{0.0, {0.0, 0.5}, {0.0, 1.0}, {}}};
    const std::vector<drawing::HatchLine> lines = LinesOf(Add(std::move(data)));
    ASSERT_EQ(lines.size(), 2U);
    ExpectLine(lines[0], {0, 0.5}, {2, 0.5});
    ExpectLine(lines[1], {0, 1.5}, {2, 1.5});
}

TEST_F(Hatches, EveryKindOfEdgeBoundsTheArea) {
    // Half discs of radius 1 around the origin, closed by a straight edge, each with another kind of arc.
    const auto lineThrough = [this](const drawing::HatchEdge& arc) {
        drawing::HatchData data;
        data.loops.resize(1);
        data.loops[0].edges.push_back(OxGeLineSeg2d({-1, 0}, {1, 0}));
        data.loops[0].edges.push_back(arc);
        data.pattern = {{0.0, {0.0, 0.5}, {0.0, 10.0}, {}}};
        const std::vector<drawing::HatchLine> lines = LinesOf(Add(std::move(data)));
        return lines.size() == 1 ? lines[0] : drawing::HatchLine();
    };
    const double x = std::sqrt(0.75);
    ExpectLine(lineThrough(OxGeCircArc2d({}, 1.0, 0.0, pi, false)), {-x, 0.5}, {x, 0.5});
    ExpectLine(lineThrough(OxGeCircArc2d({}, 1.0, pi, 2 * pi, true)), {-x, 0.5}, {x, 0.5});
    ExpectLine(lineThrough(OxGeEllipArc2d({}, {0.0, 2.0}, 0.5, -pi / 2, pi / 2, false)),
               {-std::sqrt(1 - 0.0625), 0.5}, {std::sqrt(1 - 0.0625), 0.5});
    drawing::NurbsData parabola;
    parabola.degree = 2;
    parabola.controlPoints = {{1, 0, 0}, {0, 2, 0}, {-1, 0, 0}}; // y = 1 - x²
    parabola.knots = {0, 0, 0, 1, 1, 1};
    ExpectLine(lineThrough(drawing::BuildCurve(parabola)), {-std::sqrt(0.5), 0.5}, {std::sqrt(0.5), 0.5});
}

TEST_F(Hatches, BulgesBoundTheArea) {
    drawing::HatchData data;
    drawing::HatchLoop loop;
    loop.polyline = drawing::PolylineLoop{{{{-1, 0}, 1.0}, {{1, 0}, 1.0}}, true}; // a disc
    data.loops.push_back(std::move(loop));
    data.pattern = {{0.0, {0.0, -0.5}, {0.0, 10.0}, {}}};
    const std::vector<drawing::HatchLine> lines = LinesOf(Add(std::move(data)));
    ASSERT_EQ(lines.size(), 1U);
    ExpectLine(lines[0], {-std::sqrt(0.75), -0.5}, {std::sqrt(0.75), -0.5});
}

TEST_F(Hatches, MoreLinesThanTheDatabaseAllowsFailToEvaluate) {
    drawing::HatchData data;
    data.loops.push_back(Square(2.0));
    data.pattern = {{0.0, {0.0, 0.25}, {0.0, 0.5}, {}}}; // lines at 0.25, 0.75, 1.25 and 1.75
    drawing::Hatch& hatch = Add(std::move(data));
    database.LimitHatchLines(4);
    EXPECT_EQ(hatch.evaluateHatch(true), Oxsys::eOk);
    EXPECT_EQ(database.HatchesTooDense(), 0U);
    database.LimitHatchLines(3);
    EXPECT_EQ(hatch.evaluateHatch(true), Oxsys::eTooManyHatchLines);
    EXPECT_EQ(hatch.numHatchLines(), 0);
    EXPECT_EQ(database.HatchesTooDense(), 1U);
}

TEST_F(Hatches, MoreLinesThanAnIntCountsFailToEvaluateAtOnce) {
    drawing::HatchData data;
    data.loops.push_back(Square(2.0));
    data.pattern = {{0.0, {0.0, 0.0}, {0.0, 1e-12}, {}}};
    EXPECT_EQ(Add(std::move(data)).evaluateHatch(true), Oxsys::eTooManyHatchLines);
}

TEST_F(Hatches, APatternThatMakesNoLinesFailsToEvaluate) {
    drawing::HatchData data;
    data.loops.push_back(Square(2.0));
    data.pattern = {{0.0, {0.0, 0.0}, {1.0, 0.0}, {}}}; // offset along the lines
    EXPECT_EQ(Add(std::move(data)).evaluateHatch(true), Oxsys::eDegenerateGeometry);
}

TEST_F(Hatches, ThereAreNoLinesBeforeAnEvaluationAndAfterOneThatFails) {
    drawing::HatchData data;
    data.lines = {{{{0, 0}, {1, 0}}}};
    drawing::Hatch& hatch = Add(std::move(data));
    EXPECT_EQ(hatch.numHatchLines(), 0);
    EXPECT_EQ(hatch.evaluateHatch(true), Oxsys::eOk);
    EXPECT_EQ(hatch.numHatchLines(), 1);
    OxGePoint2d start;
    OxGePoint2d end;
    EXPECT_EQ(hatch.getHatchLineDataAt(-1, start, end), Oxsys::eInvalidIndex);
    EXPECT_EQ(hatch.getHatchLineDataAt(1, start, end), Oxsys::eInvalidIndex);
    EXPECT_EQ(Add({}).evaluateHatch(true), Oxsys::eNotApplicable);
}

TEST_F(Hatches, LoopsAreReadOnlyInTheirOwnForm) {
    drawing::HatchData data;
    data.loops.push_back(Square(1.0));
    data.loops.emplace_back();
    drawing::Hatch& hatch = Add(std::move(data));
    int type = -1;
    OxArray<const OxGeCurve2d*> edges;
    OxArray<int> types;
    OxGePoint2dArray vertices;
    OxGeDoubleArray bulges;
    EXPECT_EQ(hatch.getLoopAt(0, type, edges, types), Oxsys::eNotApplicable);
    EXPECT_EQ(hatch.getLoopAt(1, type, vertices, bulges), Oxsys::eNotApplicable);
    EXPECT_EQ(type, -1);
    EXPECT_EQ(hatch.getLoopAt(0, type, vertices, bulges), Oxsys::eOk);
    EXPECT_EQ(type, OxDbHatch::kPolyline);
    EXPECT_EQ(hatch.getLoopAt(1, type, edges, types), Oxsys::eOk);
    EXPECT_EQ(type, OxDbHatch::kDefault);
    EXPECT_EQ(hatch.getLoopAt(2, type, edges, types), Oxsys::eInvalidIndex);
    EXPECT_EQ(hatch.getLoopAt(-1, type, vertices, bulges), Oxsys::eInvalidIndex);
}

} // namespace
