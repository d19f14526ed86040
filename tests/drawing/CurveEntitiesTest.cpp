// Lines, arcs, circles, ellipses, polylines and splines of a drawing.
#include "drawing/entities/CurveEntities.h"
#include "drawing/entities/SimpleEntities.h"
#include "tests/drawing/OpenedObjects.h"

#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

class CurveEntities : public testing::Test {
protected:
    drawing::Database database;
    drawing::BlockRecord* block = database.AddBlock(L"B");
};

void ExpectNear(const OxGePoint3d& point, double x, double y) {
    EXPECT_NEAR(point.x, x, 1e-12);
    EXPECT_NEAR(point.y, y, 1e-12);
}

OxGePoint3d PointAt(const OxDbCurve& curve, double parameter) {
    OxGePoint3d point;
    EXPECT_EQ(curve.getPointAtParam(parameter, point), Oxsys::eOk);
    return point;
}

OxGePoint3d StartOf(const OxDbCurve& curve) {
    OxGePoint3d point;
    EXPECT_EQ(curve.getStartPoint(point), Oxsys::eOk);
    return point;
}

OxGePoint3d EndOf(const OxDbCurve& curve) {
    OxGePoint3d point;
    EXPECT_EQ(curve.getEndPoint(point), Oxsys::eOk);
    return point;
}

TEST_F(CurveEntities, ALineRunsFromStartToEndByItsLength) {
    const auto& line = block->Add<drawing::Line>({}, OxGePoint3d{1, 1, 0}, OxGePoint3d{4, 5, 0});
    double end = 0;
    ASSERT_EQ(line.getEndParam(end), Oxsys::eOk);
    EXPECT_EQ(end, 5.0);
    EXPECT_EQ(StartOf(line), (OxGePoint3d{1, 1, 0}));
    EXPECT_EQ(EndOf(line), (OxGePoint3d{4, 5, 0}));
    ExpectNear(PointAt(line, 2.5), 2.5, 3.0);
    EXPECT_FALSE(line.isClosed());
    const auto& dot = block->Add<drawing::Line>({}, OxGePoint3d{1, 1, 0}, OxGePoint3d{1, 1, 0});
    EXPECT_EQ(EndOf(dot), (OxGePoint3d{1, 1, 0}));
}

TEST_F(CurveEntities, AnArcsParametersAreItsAnglesAsGiven) {
    const auto& arc = block->Add<drawing::Arc>({}, drawing::ArcData{{1, 2, 0}, 2.0, 1.5 * pi, 0.5 * pi});
    double start = 0;
    double end = 0;
    ASSERT_EQ(arc.getStartParam(start), Oxsys::eOk);
    ASSERT_EQ(arc.getEndParam(end), Oxsys::eOk);
    EXPECT_EQ(start, 1.5 * pi);
    EXPECT_EQ(end, 0.5 * pi);
    ExpectNear(StartOf(arc), 1.0, 0.0);
    ExpectNear(EndOf(arc), 1.0, 4.0);
    ExpectNear(PointAt(arc, 0.0), 3.0, 2.0);
}

TEST_F(CurveEntities, AnArcSeenFromBelowIsMirrored) {
    const auto& arc =
        block->Add<drawing::Arc>({}, drawing::ArcData{{1, 2, 0}, 2.0, 0.0, 0.5 * pi, {0, 0, -1}});
    ExpectNear(StartOf(arc), -1.0, 2.0);
    ExpectNear(EndOf(arc), 1.0, 4.0);
    EXPECT_EQ(arc.normal().z, -1.0);
    const auto& above =
        block->Add<drawing::Arc>({}, drawing::ArcData{{1, 2, 0}, 2.0, 0.0, 0.5 * pi, {0, 0, 0}});
    ExpectNear(StartOf(above), 3.0, 2.0);
}

TEST_F(CurveEntities, ACircleIsClosed) {
    const auto& circle = block->Add<drawing::Circle>({}, OxGePoint3d{1, 2, 0}, 3.0);
    EXPECT_TRUE(circle.isClosed());
    ExpectNear(StartOf(circle), 4.0, 2.0);
    ExpectNear(PointAt(circle, pi), -2.0, 2.0);
}

TEST_F(CurveEntities, AnEllipsesMinorAxisIsToTheLeftOfItsMajor) {
    const auto& ellipse =
        block->Add<drawing::Ellipse>({}, drawing::EllipseData{{1, 1, 0}, {0, 4, 0}, 0.5, 0.0, 0.5 * pi});
    EXPECT_EQ(ellipse.minorAxis(), (OxGeVector3d{-2, 0, 0}));
    ExpectNear(StartOf(ellipse), 1.0, 5.0);
    ExpectNear(EndOf(ellipse), -1.0, 1.0);
}

TEST_F(CurveEntities, AnEllipseIsClosedWhenItsAnglesAreAWholeTurnApart) {
    const auto isClosed = [this](double start, double end) {
        return block->Add<drawing::Ellipse>({}, drawing::EllipseData{{}, {1, 0, 0}, 0.5, start, end})
            .isClosed();
    };
    EXPECT_TRUE(isClosed(0.0, 2 * pi));
    EXPECT_TRUE(isClosed(1.0, 1.0 - 2 * pi));
    EXPECT_TRUE(isClosed(0.0, 2 * pi + 0.9e-9));
    EXPECT_FALSE(isClosed(0.0, 2 * pi + 1.1e-9));
    EXPECT_FALSE(isClosed(0.0, 0.0));
    EXPECT_FALSE(isClosed(0.0, 4 * pi));
}

TEST_F(CurveEntities, SegmentsOfAPolylineAreOfFiveKinds) {
    const std::vector<drawing::BulgeVertex> vertices = {
        {{0, 0}, 0.0}, {{2, 0}, 1.0}, {{2, 2}, 0.5}, {{2, 2}, 0.0}};
    const auto& open = block->Add<drawing::Polyline>({}, vertices, false, false);
    EXPECT_EQ(open.segType(0), OxDbPolyline::kLine);
    EXPECT_EQ(open.segType(1), OxDbPolyline::kArc);
    EXPECT_EQ(open.segType(2), OxDbPolyline::kCoincident); // whatever its bulge
    EXPECT_EQ(open.segType(3), OxDbPolyline::kEmpty);
    const auto& closed = block->Add<drawing::Polyline>({}, vertices, true, false);
    EXPECT_EQ(closed.segType(3), OxDbPolyline::kLine);
    EXPECT_EQ(closed.segType(4), OxDbPolyline::kEmpty);
    const auto& point =
        block->Add<drawing::Polyline>({}, std::vector<drawing::BulgeVertex>{{{1, 1}, 0.0}}, false, false);
    EXPECT_EQ(point.segType(0), OxDbPolyline::kPoint);
    EXPECT_EQ(OxDbPolyline().segType(0), OxDbPolyline::kEmpty);
}

TEST_F(CurveEntities, SegmentsAreReadOnlyAsWhatTheyAre) {
    const auto& polyline = block->Add<drawing::Polyline>(
        {}, std::vector<drawing::BulgeVertex>{{{0, 0}, 0.0}, {{3, 4}, 1.0}, {{3, 6}, 0.0}}, false, false);
    OxGeLineSeg2d line;
    OxGeCircArc3d arc;
    ASSERT_EQ(polyline.getLineSegAt(0, line), Oxsys::eOk);
    EXPECT_EQ(line.startPoint(), (OxGePoint2d{0, 0}));
    EXPECT_EQ(line.endPoint(), (OxGePoint2d{3, 4}));
    EXPECT_EQ(line.length(), 5.0);
    EXPECT_EQ(polyline.getLineSegAt(1, line), Oxsys::eNotApplicable);
    EXPECT_EQ(polyline.getArcSegAt(0, arc), Oxsys::eNotApplicable);
    EXPECT_EQ(polyline.getLineSegAt(2, line), Oxsys::eInvalidIndex);
    EXPECT_EQ(line.endPoint(), (OxGePoint2d{3, 4})); // as it was
    EXPECT_EQ(polyline.getArcSegAt(1, arc), Oxsys::eOk);
}

OxGeCircArc3d ArcOfBulge(double bulge) {
    OxDbPolyline polyline;
    polyline.addVertexAt(0, {1, 1}, bulge);
    polyline.addVertexAt(1, {3, 1});
    OxGeCircArc3d arc;
    EXPECT_EQ(polyline.getArcSegAt(0, arc), Oxsys::eOk);
    return arc;
}

TEST(Bulges, OneIsAHalfCircleBelowAChordToTheRight) {
    const OxGeCircArc3d arc = ArcOfBulge(1.0);
    EXPECT_EQ(arc.startPoint(), (OxGePoint3d{1, 1, 0}));
    EXPECT_EQ(arc.endPoint(), (OxGePoint3d{3, 1, 0}));
    EXPECT_EQ(arc.center(), (OxGePoint3d{2, 1, 0}));
    EXPECT_EQ(arc.radius(), 1.0);
    EXPECT_EQ(arc.startAng(), 0.0);
    EXPECT_NEAR(arc.endAng(), pi, 1e-15);
    EXPECT_EQ(arc.normal().z, 1.0);
}

TEST(Bulges, ANegativeOneRunsClockwise) {
    // Quarter circle: chord 2, radius √2, centre one below the chord when the arc passes above it.
    const OxGeCircArc3d arc = ArcOfBulge(-std::tan(pi / 8));
    EXPECT_NEAR(arc.center().x, 2.0, 1e-15);
    EXPECT_NEAR(arc.center().y, 0.0, 1e-14);
    EXPECT_NEAR(arc.radius(), std::sqrt(2.0), 1e-14);
    EXPECT_NEAR(arc.endAng(), pi / 2, 1e-15);
    EXPECT_EQ(arc.normal().z, -1.0);
}

TEST(Bulges, AboveOneTheArcIsMoreThanHalfACircle) {
    // Chord 2, bulge 2: radius 2 × 5 ÷ 8, centre 2 × (1 - 4) ÷ 8 from the chord, on its right hand.
    const OxGeCircArc3d arc = ArcOfBulge(2.0);
    EXPECT_EQ(arc.radius(), 1.25);
    EXPECT_EQ(arc.center(), (OxGePoint3d{2, 0.25, 0}));
    EXPECT_GT(arc.endAng(), pi);
}

TEST_F(CurveEntities, PointsOfAPolylineGoBySegments) {
    const auto& polyline = block->Add<drawing::Polyline>(
        {}, std::vector<drawing::BulgeVertex>{{{0, 0}, 0.0}, {{2, 0}, 1.0}, {{4, 0}, -1.0}}, true, false);
    ExpectNear(PointAt(polyline, 0.5), 1.0, 0.0);
    ExpectNear(PointAt(polyline, 1.5), 3.0, -1.0);
    ExpectNear(PointAt(polyline, 2.5), 2.0, -2.0); // clockwise, back to the start
    EXPECT_EQ(EndOf(polyline), (OxGePoint3d{0, 0, 0}));
    OxGePoint3d point;
    EXPECT_NE(polyline.getPointAtParam(3.5, point), Oxsys::eOk);
    EXPECT_NE(polyline.getPointAtParam(-0.5, point), Oxsys::eOk);
    EXPECT_NE(OxDbPolyline().getStartPoint(point), Oxsys::eOk);
}

TEST(FreeStandingPolyline, HoldsWhatItIsGivenAndIsInNoDatabase) {
    OxDbPolyline polyline(3);
    EXPECT_EQ(polyline.numVerts(), 0U);
    EXPECT_EQ(polyline.addVertexAt(1, {0, 0}), Oxsys::eInvalidIndex);
    EXPECT_EQ(polyline.addVertexAt(0, {1, 1}), Oxsys::eOk);
    EXPECT_EQ(polyline.addVertexAt(0, {0, 0}), Oxsys::eOk);
    OxGeLineSeg2d segment;
    ASSERT_EQ(polyline.getLineSegAt(0, segment), Oxsys::eOk);
    EXPECT_EQ(segment.startPoint(), (OxGePoint2d{0, 0}));
    EXPECT_EQ(LayerName(polyline), L"0");
    EXPECT_TRUE(polyline.color().isByLayer());
    EXPECT_EQ(polyline.lineWeight(), OxDb::kLnWtByLayer);
    EXPECT_TRUE(polyline.linetypeId().isNull());
    EXPECT_FALSE(polyline.hasPlinegen());
    drawing::Database database;
    database.AddLinetype(L"D", {DashOf(1.0)});
    const OxDbObjectId id =
        database.AddBlock(L"B")->Add<drawing::Point>({.linetype = L"D"}, OxGePoint3d{}).linetypeId();
    EXPECT_EQ(polyline.setColor(ColorOfIndex(1)), Oxsys::eOk);
    EXPECT_EQ(polyline.setLineWeight(static_cast<OxDb::LineWeight>(35)), Oxsys::eOk);
    EXPECT_EQ(polyline.setLinetype(id), Oxsys::eOk);
    polyline.setPlinegen(true);
    EXPECT_EQ(TrueColor(polyline.color()), 0xff0000U);
    EXPECT_EQ(polyline.lineWeight(), 35);
    EXPECT_EQ(polyline.linetypeId(), id);
    EXPECT_TRUE(polyline.hasPlinegen());
    EXPECT_TRUE(polyline.objectId().isNull());
    EXPECT_FALSE(polyline.isResident());
    EXPECT_EQ(polyline.close(), Oxsys::eNoDatabase);
    EXPECT_TRUE(polyline.isKindOf(OxDbPolyline::desc()));
}

TEST_F(CurveEntities, ASplineHasItsCurvesEnds) {
    const auto& fit = block->Add<drawing::Spline>({}, FitThrough({{0, 0, 0}, {3, 4, 0}, {3, 5, 0}}));
    ExpectNear(StartOf(fit), 0.0, 0.0);
    ExpectNear(EndOf(fit), 3.0, 5.0);
    EXPECT_FALSE(fit.isClosed());
    drawing::NurbsData data = PolygonThrough({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}});
    data.closed = true;
    const auto& closed = block->Add<drawing::Spline>({}, std::move(data));
    EXPECT_TRUE(closed.isClosed());
    const auto& nothing = block->Add<drawing::Spline>({}, drawing::FitData{});
    EXPECT_EQ(EndOf(nothing), (OxGePoint3d{}));
}

} // namespace
