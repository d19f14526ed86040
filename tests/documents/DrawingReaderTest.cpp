// What becomes of the parts of a drawing document.
#include "OxDb/OxDb.h"
#include "tests/documents/DrawingDocuments.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace {

/// A document's drawing, read by its interface; everything that was opened is closed at the end.
class DrawingReader : public testing::Test {
protected:
    void Read(const std::string& text) {
        std::string fault;
        database_ = ReadDocument(text, fault);
        ASSERT_EQ(fault, "");
    }

    OxDbBlockTableRecord* Block(const wchar_t* name) {
        OxDbBlockTable* table = nullptr;
        OxDbBlockTableRecord* record = nullptr;
        EXPECT_EQ(database_->getSymbolTable(table, OxDb::kForRead), Oxsys::eOk);
        table->getAt(name, record, OxDb::kForRead);
        return record;
    }

    /// The entity of that number of block "B", as a T.
    template <class T>
    T* Entity(int number = 0) {
        OxDbBlockTableRecordIterator* iterator = nullptr;
        EXPECT_EQ(Block(L"B")->newIterator(iterator), Oxsys::eOk);
        for (int step = 0; step < number; ++step) {
            iterator->step();
        }
        OxDbEntity* entity = nullptr;
        EXPECT_EQ(iterator->getEntity(entity, OxDb::kForRead), Oxsys::eOk);
        delete iterator;
        EXPECT_TRUE(entity->isKindOf(T::desc()));
        return static_cast<T*>(entity);
    }

    OxDbLinetypeTableRecord* LinetypeOf(const OxDbEntity& entity) {
        OxDbLinetypeTableRecord* record = nullptr;
        oxdbOpenOxDbObject(record, entity.linetypeId(), OxDb::kForRead);
        return record;
    }

    std::unique_ptr<drawing::Database> database_;
};

std::wstring LayerOf(const OxDbEntity& entity) {
    wchar_t* buffer = entity.layer();
    std::wstring layer = buffer;
    oxutDelBuffer(buffer);
    return layer;
}

std::uint32_t Rgb(const OxCmColor& color) {
    return OxCmEntityColor::trueColor(color.entityColor());
}

TEST_F(DrawingReader, AnEmptyDocumentIsADrawingWithoutUnits) {
    Read(Document(""));
    EXPECT_EQ(database_->insunits(), OxDb::kUnitsUndefined);
}

TEST_F(DrawingReader, KeysMayComeInAnyOrder) {
    Read(R"({"blocks": [{"entities": [{"position": [1, 2], "type": "point", "id": "a"}],
             "drawOrder": ["a"], "units": 1, "name": "B"}], "insunits": 6, "version": 1,
             "format": "styleconversion/drawing"})");
    EXPECT_EQ(database_->insunits(), OxDb::kUnitsMeters);
    EXPECT_EQ(Block(L"B")->blockInsertUnits(), OxDb::kUnitsInches);
    EXPECT_EQ(Entity<OxDbPoint>()->position(), (OxGePoint3d{1, 2, 0}));
}

TEST_F(DrawingReader, AWholeNumberMayBeWrittenWithAPoint) {
    Read(Document(R"("insunits": 4.0, "layers": [{"name": "A", "color": 2e0}])"));
    EXPECT_EQ(database_->insunits(), OxDb::kUnitsMillimeters);
}

TEST_F(DrawingReader, LayersHaveDefaults) {
    Read(Document(R"("layers": [{"name": "A"}, {"name": "B", "color": "#12aBfF", "lineWeight": 35},
                                {"name": "C", "color": "ByBlock"}])"));
    OxDbLayerTable* table = nullptr;
    ASSERT_EQ(database_->getSymbolTable(table, OxDb::kForRead), Oxsys::eOk);
    OxDbLayerTableRecord* layer = nullptr;
    ASSERT_EQ(table->getAt(L"a", layer, OxDb::kForRead), Oxsys::eOk);
    EXPECT_EQ(Rgb(layer->color()), 0xffffffU);
    EXPECT_EQ(layer->lineWeight(), OxDb::kLnWtByLwDefault);
    ASSERT_EQ(table->getAt(L"B", layer, OxDb::kForRead), Oxsys::eOk);
    EXPECT_EQ(Rgb(layer->color()), 0x12abffU);
    EXPECT_EQ(layer->lineWeight(), 35);
    ASSERT_EQ(table->getAt(L"C", layer, OxDb::kForRead), Oxsys::eOk);
    EXPECT_TRUE(layer->color().isByBlock());
}

TEST_F(DrawingReader, EntitiesHaveDefaults) {
    Read(EntityDocument(R"({"type": "point", "position": [1, 2, 3]})"));
    const auto* const point = Entity<OxDbPoint>();
    EXPECT_EQ(LayerOf(*point), L"0");
    EXPECT_TRUE(point->color().isByLayer());
    EXPECT_EQ(point->lineWeight(), OxDb::kLnWtByLayer);
    EXPECT_EQ(point->position(), (OxGePoint3d{1, 2, 3}));
    EXPECT_EQ(LinetypeOf(*point)->numDashes(), 0);
}

TEST_F(DrawingReader, DefaultsComeBackAfterAnEntityThatHasItsOwn) {
    Read(EntityDocument(R"({"type": "ellipse", "layer": "L", "color": 3, "lineWeight": 25, "linetype": "D",
                            "center": [1, 1], "majorAxis": [2, 0], "radiusRatio": 0.5, "startAngle": 1, "endAngle": 2},
                           {"type": "ellipse", "center": [0, 0, 7], "majorAxis": [0, 1], "radiusRatio": 0.25},
                           {"type": "arc", "center": [0, 0], "radius": 1, "startAngle": 3, "endAngle": 4,
                            "normal": [0, 0, -1]},
                           {"type": "arc", "center": [0, 0], "radius": 1, "startAngle": 5, "endAngle": 6})"));
    const auto* const first = Entity<OxDbEllipse>(0);
    EXPECT_EQ(LayerOf(*first), L"L");
    EXPECT_EQ(Rgb(first->color()), 0x00ff00U);
    EXPECT_EQ(first->lineWeight(), 25);
    EXPECT_EQ(LinetypeOf(*first), nullptr);
    EXPECT_EQ(first->startAngle(), 1.0);
    EXPECT_EQ(first->endAngle(), 2.0);
    EXPECT_FALSE(first->isClosed());
    const auto* const second = Entity<OxDbEllipse>(1);
    EXPECT_EQ(LayerOf(*second), L"0");
    EXPECT_TRUE(second->color().isByLayer());
    EXPECT_EQ(second->lineWeight(), OxDb::kLnWtByLayer);
    EXPECT_NE(LinetypeOf(*second), nullptr);
    EXPECT_EQ(second->startAngle(), 0.0);
    EXPECT_EQ(second->endAngle(), 6.283185307179586);
    EXPECT_TRUE(second->isClosed());
    EXPECT_EQ(second->center(), (OxGePoint3d{0, 0, 7}));
    EXPECT_EQ(Entity<OxDbArc>(2)->normal(), (OxGeVector3d{0, 0, -1}));
    EXPECT_EQ(Entity<OxDbArc>(3)->normal(), (OxGeVector3d{0, 0, 1}));
}

TEST_F(DrawingReader, LinetypesCarryShapesAndTexts) {
    Read(Document(R"("textStyles": [{"name": "S", "fileName": "marks.shx"}],
        "linetypes": [{"name": "GAS", "dashes": [{"length": 0.5}, {"length": -0.25, "shapeStyle": "s",
            "text": "GAS", "offset": [0.1, -0.2], "scale": 2, "rotation": 0.5}, {"length": 0, "shapeStyle": "S",
            "shapeNumber": 132}]}, {"name": "LONG", "dashes": [{"length": 1}], "patternLength": 3}],
        "blocks": [{"name": "B", "entities": [
            {"type": "line", "start": [0, 0], "end": [1, 0], "linetype": "gas"},
            {"type": "line", "start": [0, 0], "end": [1, 0], "linetype": "LONG"}]}])"));
    const auto* const gas = LinetypeOf(*Entity<OxDbLine>(0));
    ASSERT_NE(gas, nullptr);
    EXPECT_EQ(gas->patternLength(), 0.75);
    ASSERT_EQ(gas->numDashes(), 3);
    EXPECT_EQ(gas->dashLengthAt(1), -0.25);
    EXPECT_TRUE(gas->shapeStyleAt(0).isNull());
    EXPECT_FALSE(gas->shapeStyleAt(1).isNull());
    EXPECT_EQ(gas->shapeStyleAt(1), gas->shapeStyleAt(2));
    EXPECT_EQ(gas->shapeNumberAt(1), 0);
    EXPECT_EQ(gas->shapeNumberAt(2), 132);
    EXPECT_EQ(gas->shapeOffsetAt(1), (OxGeVector2d{0.1, -0.2}));
    EXPECT_EQ(gas->shapeOffsetAt(2), (OxGeVector2d{0, 0}));
    EXPECT_EQ(gas->shapeScaleAt(1), 2.0);
    EXPECT_EQ(gas->shapeScaleAt(2), 1.0);
    EXPECT_EQ(gas->shapeRotationAt(1), 0.5);
    const wchar_t* text = nullptr;
    ASSERT_EQ(gas->textAt(1, text), Oxsys::eOk);
    EXPECT_STREQ(text, L"GAS");
    ASSERT_EQ(gas->textAt(2, text), Oxsys::eOk);
    EXPECT_EQ(text, nullptr);
    EXPECT_EQ(LinetypeOf(*Entity<OxDbLine>(1))->patternLength(), 3.0);
}

TEST_F(DrawingReader, TextStylesHaveDefaults) {
    Read(Document(
        R"("textStyles": [{"name": "A"}, {"name": "B", "fileName": "f.shx", "bigFontFileName": "g.shx",
        "typeface": "Arial", "bold": true, "italic": true, "isShapeFile": true, "isVertical": true,
        "obliquingAngle": 6.1, "textSize": 2.5, "xScale": 0.8, "flagBits": 5}])"));
    OxDbTextStyleTable* table = nullptr;
    ASSERT_EQ(database_->getSymbolTable(table, OxDb::kForRead), Oxsys::eOk);
    OxDbTextStyleTableRecord* style = nullptr;
    ASSERT_EQ(table->getAt(L"A", style, OxDb::kForRead), Oxsys::eOk);
    EXPECT_EQ(style->xScale(), 1.0);
    EXPECT_EQ(style->textSize(), 0.0);
    EXPECT_FALSE(style->isShapeFile());
    ASSERT_EQ(table->getAt(L"B", style, OxDb::kForRead), Oxsys::eOk);
    EXPECT_EQ(style->xScale(), 0.8);
    EXPECT_EQ(style->textSize(), 2.5);
    EXPECT_EQ(style->obliquingAngle(), 6.1);
    EXPECT_EQ(style->flagBits(), 5);
    EXPECT_TRUE(style->isShapeFile());
    EXPECT_TRUE(style->isVertical());
    wchar_t* typeface = nullptr;
    bool bold = false;
    bool italic = false;
    std::int32_t characterSet = 0;
    std::int32_t pitch = 0;
    ASSERT_EQ(style->font(typeface, bold, italic, characterSet, pitch), Oxsys::eOk);
    EXPECT_STREQ(typeface, L"Arial");
    EXPECT_TRUE(bold);
    EXPECT_TRUE(italic);
    delete[] typeface;
}

TEST_F(DrawingReader, ADrawOrderMayLeaveEntitiesOut) {
    Read(Document(R"("blocks": [{"name": "B", "drawOrder": ["b", "a"], "entities": [
        {"type": "point", "id": "a", "position": [0, 0]}, {"type": "point", "position": [1, 0]},
        {"type": "point", "id": "b", "position": [2, 0]}]}, {"name": "C", "entities": []},
        {"name": "D", "entities": [], "drawOrder": []}])"));
    OxDbSortentsTable* order = nullptr;
    ASSERT_EQ(Block(L"B")->getSortentsTable(order, OxDb::kForRead), Oxsys::eOk);
    OxDbObjectIdArray ids;
    ASSERT_EQ(order->getFullDrawOrder(ids), Oxsys::eOk);
    ASSERT_EQ(ids.length(), 2);
    EXPECT_EQ(ids[0], Entity<OxDbPoint>(2)->objectId());
    EXPECT_EQ(ids[1], Entity<OxDbPoint>(0)->objectId());
    EXPECT_EQ(Block(L"C")->getSortentsTable(order, OxDb::kForRead), Oxsys::eKeyNotFound);
    ASSERT_EQ(Block(L"D")->getSortentsTable(order, OxDb::kForRead), Oxsys::eOk);
    ASSERT_EQ(order->getFullDrawOrder(ids), Oxsys::eOk);
    EXPECT_EQ(ids.length(), 0);
}

TEST_F(DrawingReader, ReferencesAreInsertsAnywhereInDocumentOrder) {
    Read(Document(R"("blocks": [
        {"name": "HOUSE", "entities": [{"type": "insert", "block": "tree", "color": 1}]},
        {"name": "TREE", "entities": []},
        {"name": "*Model", "layout": true, "entities": [{"type": "insert", "block": "TREE", "color": 2},
                                                        {"type": "insert", "block": "NOWHERE"}]}])"));
    OxDbBlockReferenceIdIterator* references = nullptr;
    ASSERT_EQ(Block(L"Tree")->newBlockReferenceIdIterator(references), Oxsys::eOk);
    std::vector<std::uint32_t> colors;
    for (references->start(); !references->done(); references->step()) {
        OxDbBlockReference* reference = nullptr;
        ASSERT_EQ(references->getBlockReference(reference, OxDb::kForRead), Oxsys::eOk);
        colors.push_back(Rgb(reference->color()));
    }
    delete references;
    EXPECT_EQ(colors, (std::vector<std::uint32_t>{0xff0000, 0xffff00}));
}

TEST_F(DrawingReader, PolylinesHaveBulges) {
    Read(EntityDocument(R"({"type": "polyline", "vertices": [[0, 0], [2, 0, 1], [2, 2]], "closed": true,
                            "plinegen": true}, {"type": "polyline", "vertices": []})"));
    const auto* const polyline = Entity<OxDbPolyline>(0);
    EXPECT_EQ(polyline->numVerts(), 3U);
    EXPECT_TRUE(polyline->isClosed());
    EXPECT_TRUE(polyline->hasPlinegen());
    EXPECT_EQ(polyline->segType(0), OxDbPolyline::kLine);
    EXPECT_EQ(polyline->segType(1), OxDbPolyline::kArc);
    EXPECT_EQ(polyline->segType(2), OxDbPolyline::kLine);
    const auto* const empty = Entity<OxDbPolyline>(1);
    EXPECT_EQ(empty->numVerts(), 0U);
    EXPECT_FALSE(empty->isClosed());
    EXPECT_FALSE(empty->hasPlinegen());
}

TEST_F(DrawingReader, SplinesComeInTwoForms) {
    Read(EntityDocument(R"({"type": "spline", "fitPoints": [[0, 0], [1, 1, 5]], "fitTolerance": 0.1,
                            "startTangent": [1, 0], "endTangent": [0, 1]},
                           {"type": "spline", "degree": 2, "controlPoints": [[0, 0], [1, 1], [2, 0]],
                            "knots": [0, 0, 0, 1, 1, 1], "weights": [1, 2, 1], "closed": true, "periodic": true},
                           {"type": "spline", "fitPoints": []})"));
    OxGePoint3dArray points;
    OxGeVector3d start;
    OxGeVector3d end;
    int degree = 0;
    double tolerance = 0;
    bool tangents = false;
    const auto* const fit = Entity<OxDbSpline>(0);
    ASSERT_TRUE(fit->hasFitData());
    ASSERT_EQ(fit->getFitData(points, degree, tolerance, tangents, start, end), Oxsys::eOk);
    EXPECT_EQ(points.length(), 2);
    EXPECT_EQ(points[1], (OxGePoint3d{1, 1, 5}));
    EXPECT_EQ(degree, 3);
    EXPECT_EQ(tolerance, 0.1);
    EXPECT_TRUE(tangents);
    EXPECT_EQ(start, (OxGeVector3d{1, 0, 0}));
    EXPECT_EQ(end, (OxGeVector3d{0, 1, 0}));
    bool rational = false;
    bool closed = false;
    bool periodic = false;
    OxGeDoubleArray knots;
    OxGeDoubleArray weights;
    double knotTolerance = 0;
    EXPECT_EQ(fit->getNurbsData(degree, rational, closed, periodic, points, knots, weights, tolerance,
                                knotTolerance),
              Oxsys::eNotApplicable);
    const auto* const nurbs = Entity<OxDbSpline>(1);
    ASSERT_FALSE(nurbs->hasFitData());
    ASSERT_EQ(nurbs->getNurbsData(degree, rational, closed, periodic, points, knots, weights, tolerance,
                                  knotTolerance),
              Oxsys::eOk);
    EXPECT_EQ(degree, 2);
    EXPECT_TRUE(rational);
    EXPECT_TRUE(closed);
    EXPECT_TRUE(periodic);
    EXPECT_EQ(points.length(), 3);
    EXPECT_EQ(knots.length(), 6);
    EXPECT_EQ(weights[1], 2.0);
    ASSERT_EQ(Entity<OxDbSpline>(2)->getFitData(points, degree, tolerance, tangents, start, end), Oxsys::eOk);
    EXPECT_EQ(points.length(), 0);
    EXPECT_FALSE(tangents);
}

TEST_F(DrawingReader, HatchesHaveLoopsOfBothKinds) {
    Read(EntityDocument(R"({"type": "hatch", "solid": true, "loops": [
        {"vertices": [[0, 0], [1, 0, 0], [1, 1]]}, {"vertices": [[0, 0], [1, 0], [1, 1]]},
        {"edges": [{"type": "line", "start": [0, 0], "end": [1, 0]},
                   {"type": "arc", "center": [1, 1], "radius": 2, "startAngle": 0, "endAngle": 1, "clockwise": true},
                   {"type": "ellipse", "center": [0, 0], "majorAxis": [0, 2], "radiusRatio": 0.5, "startAngle": 0,
                    "endAngle": 6.283185307179586},
                   {"type": "spline", "fitPoints": [[0, 0], [1, 1]]}]}]})"));
    auto* const hatch = Entity<OxDbHatch>();
    EXPECT_TRUE(hatch->isSolidFill());
    ASSERT_EQ(hatch->numLoops(), 3);
    int type = 0;
    OxArray<const OxGeCurve2d*> edges;
    OxArray<int> types;
    OxGePoint2dArray vertices;
    OxGeDoubleArray bulges;
    EXPECT_EQ(hatch->getLoopAt(0, type, edges, types), Oxsys::eNotApplicable);
    ASSERT_EQ(hatch->getLoopAt(0, type, vertices, bulges), Oxsys::eOk);
    EXPECT_EQ(vertices.length(), 3);
    EXPECT_EQ(bulges.length(), 3); // one vertex gives a bulge, be it 0
    ASSERT_EQ(hatch->getLoopAt(1, type, vertices, bulges), Oxsys::eOk);
    EXPECT_EQ(bulges.length(), 0);
    EXPECT_EQ(hatch->getLoopAt(2, type, vertices, bulges), Oxsys::eNotApplicable);
    ASSERT_EQ(hatch->getLoopAt(2, type, edges, types), Oxsys::eOk);
    ASSERT_EQ(edges.length(), 4);
    EXPECT_TRUE(edges[0]->isKindOf(OxGe::kLineSeg2d));
    ASSERT_TRUE(edges[1]->isKindOf(OxGe::kCircArc2d));
    const auto& arc = static_cast<const OxGeCircArc2d&>(*edges[1]);
    EXPECT_EQ(arc.radius(), 2.0);
    EXPECT_TRUE(arc.isClockWise());
    ASSERT_TRUE(edges[2]->isKindOf(OxGe::kEllipArc2d));
    EXPECT_TRUE(edges[2]->isClosed());
    EXPECT_EQ(static_cast<const OxGeEllipArc2d&>(*edges[2]).minorRadius(), 1.0);
    EXPECT_TRUE(edges[3]->isKindOf(OxGe::kNurbCurve2d));
}

// A square whose edges are given by the numbers of their corners, from 0 to 3 counter-clockwise.
std::string SquareHatch(std::initializer_list<std::pair<int, int>> edges, const std::string& filling) {
    const char* const corners[] = {"[0, 0]", "[4, 0]", "[4, 4]", "[0, 4]"};
    std::string all;
    for (const auto& [start, end] : edges) {
        all += (all.empty() ? "" : ", ") + std::string(R"({"type": "line", "start": )") + corners[start] +
               R"(, "end": )" + corners[end] + "}";
    }
    return R"({"type": "hatch", "loops": [{"edges": [)" + all + "]}], " + filling + "}";
}

TEST_F(DrawingReader, EdgesOfAHatchMayStandInAnyOrderAndDirection) {
    const std::string lines =
        R"("pattern": [{"angle": 0, "base": [0, 0.5], "offset": [0, 1], "dashes": []}])";
    Read(EntityDocument(SquareHatch({{0, 1}, {1, 2}, {2, 3}, {3, 0}}, lines) + "," +
                        SquareHatch({{0, 1}, {2, 3}, {2, 1}, {0, 3}}, lines) + "," +
                        SquareHatch({{0, 1}, {2, 3}, {2, 1}, {0, 3}}, R"("solid": true)")));
    for (int number = 0; number < 2; ++number) {
        auto* const hatch = Entity<OxDbHatch>(number);
        ASSERT_EQ(hatch->evaluateHatch(true), Oxsys::eOk);
        ASSERT_EQ(hatch->numHatchLines(), 4) << number;
        for (int line = 0; line < 4; ++line) {
            OxGePoint2d start;
            OxGePoint2d end;
            ASSERT_EQ(hatch->getHatchLineDataAt(line, start, end), Oxsys::eOk);
            EXPECT_EQ(start.y, end.y);
            EXPECT_EQ(std::min(start.x, end.x), 0);
            EXPECT_EQ(std::max(start.x, end.x), 4);
        }
    }
    const auto startsOf = [&](int number) {
        int type = 0;
        OxArray<const OxGeCurve2d*> edges;
        OxArray<int> types;
        EXPECT_EQ(Entity<OxDbHatch>(number)->getLoopAt(0, type, edges, types), Oxsys::eOk);
        std::vector<OxGePoint2d> starts;
        for (int edge = 0; edge < edges.length(); ++edge) {
            starts.push_back(static_cast<const OxGeLineSeg2d*>(edges[edge])->startPoint());
        }
        return starts;
    };
    EXPECT_EQ(startsOf(1), startsOf(0));
    // Filled areas are drawn by their edges as they stand.
    EXPECT_EQ(startsOf(2), (std::vector<OxGePoint2d>{{0, 0}, {4, 4}, {4, 4}, {0, 0}}));
}

TEST_F(DrawingReader, ATurnThatIsFullButForRoundingIsFull) {
    constexpr double kTurn = 6.283185307179586;
    const auto read = [&](const std::string& angles) {
        Read(EntityDocument(
            R"({"type": "ellipse", "center": [0, 0], "majorAxis": [4, 0], "radiusRatio": 0.5, )" + angles +
            R"(}, {"type": "arc", "center": [0, 0], "radius": 2, )" + angles + "}"));
    };
    const auto sweepOfArc = [&] {
        double start = 0.0;
        double end = 0.0;
        EXPECT_EQ(Entity<OxDbArc>(1)->getStartParam(start), Oxsys::eOk);
        EXPECT_EQ(Entity<OxDbArc>(1)->getEndParam(end), Oxsys::eOk);
        return end - start;
    };
    for (const char* const angles :
         {R"("startAngle": 0, "endAngle": 6.283185)", R"("startAngle": 0, "endAngle": 6.283186)",
          R"("startAngle": 1, "endAngle": 7.283185)"}) {
        read(angles);
        EXPECT_TRUE(Entity<OxDbEllipse>(0)->isClosed()) << angles;
        EXPECT_EQ(sweepOfArc(), kTurn) << angles;
    }
    read(R"("startAngle": 0, "endAngle": 6.28317)"); // more is missing than a millionth
    EXPECT_FALSE(Entity<OxDbEllipse>(0)->isClosed());
    EXPECT_EQ(sweepOfArc(), 6.28317);
}

TEST_F(DrawingReader, HatchLinesAreWhatAnEvaluationGives) {
    Read(EntityDocument(R"({"type": "hatch", "loops": [], "hatchLines": [[0, 1, 2, 3], [4, 5, 6, 7]]},
                           {"type": "hatch", "loops": []}, {"type": "hatch", "loops": [], "hatchLines": []})"));
    auto* const hatch = Entity<OxDbHatch>(0);
    EXPECT_FALSE(hatch->isSolidFill());
    EXPECT_EQ(hatch->numHatchLines(), 0);
    ASSERT_EQ(hatch->evaluateHatch(true), Oxsys::eOk);
    ASSERT_EQ(hatch->numHatchLines(), 2);
    OxGePoint2d start;
    OxGePoint2d end;
    ASSERT_EQ(hatch->getHatchLineDataAt(1, start, end), Oxsys::eOk);
    EXPECT_EQ(start, (OxGePoint2d{4, 5}));
    EXPECT_EQ(end, (OxGePoint2d{6, 7}));
    EXPECT_EQ(hatch->getHatchLineDataAt(2, start, end), Oxsys::eInvalidIndex);
    EXPECT_NE(Entity<OxDbHatch>(1)->evaluateHatch(true), Oxsys::eOk);
    EXPECT_EQ(Entity<OxDbHatch>(2)->evaluateHatch(true), Oxsys::eOk);
}

TEST_F(DrawingReader, MultiPolygonsHaveAFillColor) {
    Read(EntityDocument(
        R"({"type": "mpolygon", "loops": [{"vertices": [[0, 0], [1, 0, 0.5]]}], "fillColor": 5},
                           {"type": "mpolygon", "loops": []})"));
    const auto* const polygon = Entity<OxDbMPolygon>(0);
    EXPECT_EQ(Rgb(polygon->fillColor()), 0x0000ffU);
    OxGePoint2dArray vertices;
    OxGeDoubleArray bulges;
    ASSERT_EQ(polygon->numMPolygonLoops(), 1);
    ASSERT_EQ(polygon->getMPolygonLoopAt(0, vertices, bulges), Oxsys::eOk);
    EXPECT_EQ(bulges[1], 0.5);
    EXPECT_TRUE(Entity<OxDbMPolygon>(1)->fillColor().isByLayer());
}

TEST_F(DrawingReader, TextsOfThreeKinds) {
    Read(Document(R"("textStyles": [{"name": "Standard"}], "blocks": [{"name": "B", "entities": [
        {"type": "text", "position": [1, 2], "height": 3, "text": "Zürich €", "rotation": 0.5, "horizontalMode": 2,
         "verticalMode": 3},
        {"type": "attributeDefinition", "position": [1, 2], "height": 3, "text": "X", "tag": "NAME", "prompt": "Name?",
         "style": "NONE"},
        {"type": "mtext", "location": [5, 6], "textHeight": 2, "contents": "{\\L a}", "actualWidth": 4,
         "actualHeight": 1}]}])"));
    const auto* const text = Entity<OxDbText>(0);
    EXPECT_STREQ(text->textStringConst(), L"Z\u00fcrich \u20ac");
    EXPECT_EQ(text->rotation(), 0.5);
    EXPECT_EQ(text->horizontalMode(), OxDb::kTextRight);
    EXPECT_EQ(text->verticalMode(), OxDb::kTextTop);
    OxDbTextStyleTableRecord* style = nullptr;
    EXPECT_EQ(oxdbOpenOxDbObject(style, text->textStyle(), OxDb::kForRead), Oxsys::eOk);
    const auto* const attribute = Entity<OxDbAttributeDefinition>(1);
    EXPECT_TRUE(attribute->isKindOf(OxDbText::desc()));
    EXPECT_STREQ(attribute->tagConst(), L"NAME");
    EXPECT_STREQ(attribute->promptConst(), L"Name?");
    EXPECT_NE(oxdbOpenOxDbObject(style, attribute->textStyle(), OxDb::kForRead), Oxsys::eOk);
    const auto* const paragraph = Entity<OxDbMText>(2);
    EXPECT_STREQ(paragraph->contents(), L"{\\L a}");
    EXPECT_EQ(paragraph->actualWidth(), 4.0);
    EXPECT_EQ(paragraph->actualHeight(), 1.0);
    EXPECT_EQ(paragraph->location(), (OxGePoint3d{5, 6, 0}));
}

TEST_F(DrawingReader, AnOtherEntityIsOfNoKnownClassWhateverItsName) {
    Read(EntityDocument(R"({"type": "other", "class": "OxDbLine"})"));
    const auto* const entity = Entity<OxDbEntity>();
    EXPECT_FALSE(entity->isKindOf(OxDbLine::desc()));
    EXPECT_STREQ(entity->isA()->name(), L"OxDbLine");
}

TEST_F(DrawingReader, WidthsAreThoseOfAllVertices) {
    const std::string start = R"({"type": "polyline", "vertices": [[0, 0], [1, 0]], "widths": )";
    Read(EntityDocument(start + "[[1, 2], [3, 4]]}"));
    EXPECT_EQ(Entity<OxDbPolyline>()->numVerts(), 2U);
    std::string fault;
    EXPECT_EQ(ReadDocument(EntityDocument(start + "[[1, 2]]}"), fault), nullptr);
    EXPECT_NE(fault.find("widths: expected as many widths as vertices, found 1"), std::string::npos) << fault;
}

TEST_F(DrawingReader, AnOtherEntityHasOneShape) {
    const std::pair<std::string, std::string> rows[] = {
        {R"("corners": [[0, 0]], "path": [[0, 0]])", "path: this key cannot be given beside"},
        {R"("corners": [[0, 0]], "block": "B")", "block: this key cannot be given beside"},
        {R"("path": [[0, 0]], "position": [0, 0])", "position: this key cannot be given beside"},
        {R"("position": [0, 0])", "block"},
    };
    for (const auto& [keys, message] : rows) {
        std::string fault;
        EXPECT_EQ(ReadDocument(EntityDocument(R"({"type": "other", "class": "C", )" + keys + "}"), fault),
                  nullptr);
        EXPECT_NE(fault.find(message), std::string::npos) << fault;
    }
}

} // namespace
