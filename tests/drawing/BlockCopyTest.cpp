// Blocks as they are seen: inserts in place, from the base point, without what is hidden.
#include "drawing/entities/BlockCopy.h"

#include "drawing/database/BlockReference.h"
#include "drawing/entities/EntityVisit.h"
#include "drawing/entities/PlacedEntities.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

namespace {

using drawing::BlockCopyLosses;
using drawing::BlockCopyOptions;
using drawing::BlockReference;
using drawing::EntityProperties;
using drawing::InsertPlace;
using drawing::PlaneMap;

constexpr BlockCopyOptions kExpand = {true, false, false};

EntityProperties On(const std::wstring& layer) {
    EntityProperties properties;
    properties.layer = layer;
    return properties;
}

class BlockCopy : public testing::Test {
protected:
    drawing::BlockRecord& Block(const std::wstring& name, const drawing::BlockData& data = {}) {
        return *database.AddBlock(name, data);
    }
    static void AddLine(drawing::BlockRecord& block, double x0, double y0, double x1, double y1,
                        const EntityProperties& properties = {}) {
        block.Add<drawing::Line>(properties, OxGePoint3d{x0, y0, 0.0}, OxGePoint3d{x1, y1, 0.0});
    }
    static void Insert(drawing::BlockRecord& block, const std::wstring& name, const InsertPlace& place = {},
                       const EntityProperties& properties = {}) {
        block.Add<BlockReference>(properties, name, place);
    }

    // The lines of the copy as "x0,y0 x1,y1", rounded, and the types of what is none.
    std::vector<std::string> LinesOf(const drawing::BlockRecord& block,
                                     const BlockCopyOptions& options = kExpand) {
        copy = drawing::CopyBlock(database, block, options, losses);
        std::vector<std::string> lines;
        for (std::size_t i = 0; i < copy->EntityCount(); ++i) {
            lines.push_back(drawing::VisitEntity(copy->EntityId(i), [](const auto& entity) {
                if constexpr (std::is_same_v<std::decay_t<decltype(entity)>, drawing::Line>) {
                    return Text(entity.startPoint()) + " " + Text(entity.endPoint());
                } else {
                    const std::wstring name = entity.isA()->name();
                    return std::string(name.begin(), name.end());
                }
            }));
        }
        return lines;
    }
    static std::string Text(const OxGePoint3d& point) {
        return std::to_string(std::lround(point.x)) + "," + std::to_string(std::lround(point.y));
    }
    EntityProperties PropertiesAt(std::size_t index) { return drawing::PropertiesOf(copy->EntityId(index)); }

    drawing::Database database;
    BlockCopyLosses losses;
    std::unique_ptr<drawing::BlockRecord> copy;
};

using Lines = std::vector<std::string>;

TEST_F(BlockCopy, WithoutOptionsIsTheBlockItself) {
    drawing::BlockRecord& block = Block(L"A");
    AddLine(block, 1, 2, 3, 4);
    Insert(block, L"B");
    EXPECT_EQ(LinesOf(block, {}), (Lines{"1,2 3,4", "insert"}));
    EXPECT_EQ(copy->Name(), L"A");
    EXPECT_EQ(losses, BlockCopyLosses());
}

TEST_F(BlockCopy, ExpandedInsertsAreScaledTurnedAndMoved) {
    AddLine(Block(L"INNER"), 0, 0, 1, 0);
    drawing::BlockRecord& outer = Block(L"OUTER");
    Insert(outer, L"inner", {{10, 5, 0}, 2.0, 3.0, std::numbers::pi / 2, false, 1, 1, 0.0, 0.0});
    EXPECT_EQ(LinesOf(outer), (Lines{"10,5 10,7"}));
}

TEST_F(BlockCopy, RowsAndColumnsGoAlongTheInsertsAxesAndAreNotScaled) {
    AddLine(Block(L"INNER"), 0, 0, 1, 0);
    drawing::BlockRecord& outer = Block(L"OUTER");
    Insert(outer, L"INNER", {{0, 0, 0}, 2.0, 1.0, std::numbers::pi / 2, false, 2, 2, 10.0, 20.0});
    EXPECT_EQ(LinesOf(outer), (Lines{"0,0 0,2", "0,10 0,12", "-20,0 -20,2", "-20,10 -20,12"}));
}

TEST_F(BlockCopy, MirroredInsertsLieOnTheOtherSide) {
    AddLine(Block(L"INNER"), 0, 0, 1, 1);
    drawing::BlockRecord& outer = Block(L"OUTER");
    InsertPlace place;
    place.position = {10, 5, 0};
    place.isMirrored = true;
    Insert(outer, L"INNER", place);
    EXPECT_EQ(LinesOf(outer), (Lines{"-10,5 -11,6"}));
}

TEST_F(BlockCopy, BasePointsAreWhereInsertsPutTheirBlocks) {
    drawing::BlockData data;
    data.basePoint = {1, 1, 0};
    AddLine(Block(L"INNER", data), 1, 1, 2, 1);
    data.basePoint = {100, 0, 0};
    drawing::BlockRecord& outer = Block(L"OUTER", data);
    Insert(outer, L"INNER", {{110, 5, 0}});
    EXPECT_EQ(LinesOf(outer), (Lines{"110,5 111,5"}));
    EXPECT_EQ(LinesOf(outer, {true, true, false}), (Lines{"10,5 11,5"}));
}

TEST_F(BlockCopy, NestedInsertsInheritWhatIsByBlockAndOnLayer0) {
    EntityProperties byBlock;
    byBlock.color.setByBlock();
    byBlock.lineWeight = OxDb::kLnWtByBlock;
    byBlock.linetype = L"BYBLOCK";
    drawing::BlockRecord& inner = Block(L"INNER");
    AddLine(inner, 0, 0, 1, 0, byBlock);
    AddLine(inner, 0, 1, 1, 1, On(L"Own"));
    Insert(Block(L"MIDDLE"), L"INNER", {}, byBlock);
    EntityProperties insert = On(L"Roads");
    insert.color.setRGB(1, 2, 3);
    insert.lineWeight = static_cast<OxDb::LineWeight>(50);
    insert.linetype = L"DASHED";
    drawing::BlockRecord& outer = Block(L"OUTER");
    Insert(outer, L"MIDDLE", {}, insert);
    ASSERT_EQ(LinesOf(outer).size(), 2U);
    EXPECT_EQ(PropertiesAt(0).layer, L"Roads");
    EXPECT_EQ(PropertiesAt(0).color, insert.color);
    EXPECT_EQ(PropertiesAt(0).lineWeight, insert.lineWeight);
    EXPECT_EQ(PropertiesAt(0).linetype, L"DASHED");
    EXPECT_EQ(PropertiesAt(1).layer, L"Own");
    EXPECT_TRUE(PropertiesAt(1).color.isByLayer());
}

TEST_F(BlockCopy, AttributesAreDrawnAndTheirDefinitionsNot) {
    drawing::BlockRecord& inner = Block(L"INNER");
    inner.Add<drawing::AttributeDefinition>(EntityProperties(), drawing::TextData(), L"TAG", L"?");
    drawing::BlockRecord& outer = Block(L"OUTER");
    outer.Add<drawing::AttributeDefinition>(EntityProperties(), drawing::TextData(), L"TAG", L"?");
    auto& insert = outer.Add<BlockReference>(EntityProperties(), L"INNER", InsertPlace{{5, 5, 0}});
    drawing::TextData text;
    text.position = {7, 8, 0};
    text.text = L"value";
    insert.AddAttribute<drawing::Text>(EntityProperties(), text);
    EXPECT_EQ(LinesOf(outer), (Lines{"OxDbAttributeDefinition", "OxDbText"}));
    const auto& drawn = static_cast<const drawing::Text&>(*copy->EntityId(1).stub()->object);
    EXPECT_EQ(drawn.Data().text, L"value");
    EXPECT_EQ(drawn.position(), OxGePoint3d(7, 8, 0));
}

TEST_F(BlockCopy, InsertsIntoThemselvesAreCountedAndLeftOut) {
    drawing::BlockRecord& a = Block(L"A");
    drawing::BlockRecord& b = Block(L"B");
    Insert(a, L"B");
    AddLine(b, 0, 0, 1, 0);
    Insert(b, L"A");
    EXPECT_EQ(LinesOf(a), (Lines{"0,0 1,0"}));
    EXPECT_EQ(losses.recursive, 1U);
}

TEST_F(BlockCopy, InsertsAreFollowedDownToTheDeepestOne) {
    const auto name = [](std::size_t i) { return L"B" + std::to_wstring(i); };
    for (std::size_t i = 0; i <= drawing::kDeepestInsert + 1; ++i) {
        Insert(Block(name(i)), name(i + 1));
    }
    AddLine(Block(name(drawing::kDeepestInsert + 2)), 0, 0, 1, 0);
    EXPECT_EQ(LinesOf(*database.FindBlock(name(2))), (Lines{"0,0 1,0"}));
    EXPECT_EQ(losses.recursive, 0U);
    EXPECT_EQ(LinesOf(*database.FindBlock(name(1))), Lines());
    EXPECT_EQ(losses.recursive, 1U);
}

TEST_F(BlockCopy, BlocksThatMultiplyEndAtTheLimit) {
    // Ten inserts of ten inserts, seven times over.
    for (int i = 0; i < 7; ++i) {
        drawing::BlockRecord& block = Block(L"B" + std::to_wstring(i));
        for (int k = 0; k < 10; ++k) {
            Insert(block, L"B" + std::to_wstring(i + 1));
        }
    }
    AddLine(Block(L"B7"), 0, 0, 1, 0);
    drawing::CopyBlock(database, *database.FindBlock(L"B0"), kExpand, losses);
    EXPECT_TRUE(losses.isCut);
    // So do endless rows of a block without entities.
    Block(L"EMPTY");
    drawing::BlockRecord& rows = Block(L"ROWS");
    InsertPlace place;
    place.rows = 2147483647;
    place.columns = 2147483647;
    Insert(rows, L"EMPTY", place);
    EXPECT_EQ(LinesOf(rows), Lines());
    EXPECT_TRUE(losses.isCut);
}

TEST_F(BlockCopy, MissingBlocksAreNamed) {
    drawing::BlockRecord& block = Block(L"A");
    Insert(block, L"NONE");
    EXPECT_EQ(LinesOf(block), Lines());
    EXPECT_EQ(losses.missing, (std::vector<std::wstring>{L"NONE"}));
}

TEST_F(BlockCopy, HiddenThingsAreLeftOutOnlyWhereThatIsAskedFor) {
    OxCmColor color;
    database.AddLayer(L"Off", color)->SetState(drawing::LayerState::kOff);
    database.AddLayer(L"Frozen", color)->SetState(drawing::LayerState::kFrozen);
    drawing::BlockRecord& inner = Block(L"INNER");
    AddLine(inner, 0, 0, 1, 0, On(L"Shown"));
    AddLine(inner, 0, 1, 1, 1);
    drawing::BlockRecord& outer = Block(L"OUTER");
    AddLine(outer, 0, 2, 1, 2, On(L"off"));
    AddLine(outer, 0, 3, 1, 3, On(L"Frozen"));
    EntityProperties hidden;
    hidden.hidden = true;
    AddLine(outer, 0, 4, 1, 4, hidden);
    AddLine(outer, 0, 5, 1, 5);
    Insert(outer, L"INNER", {}, On(L"Off"));
    Insert(outer, L"INNER", {}, On(L"Frozen"));
    EXPECT_EQ(LinesOf(outer).size(), 8U);
    EXPECT_EQ(LinesOf(outer, {true, false, true}), (Lines{"0,5 1,5", "0,0 1,0"}));
    EXPECT_EQ(LinesOf(outer, {false, false, true}), (Lines{"0,5 1,5"}));
}

TEST_F(BlockCopy, TheDrawOrderIsThatOfTheBlocks) {
    drawing::BlockRecord& inner = Block(L"INNER");
    AddLine(inner, 0, 0, 1, 0);
    AddLine(inner, 0, 1, 1, 1);
    inner.SetDrawOrder({inner.EntityId(1), inner.EntityId(0)});
    drawing::BlockRecord& outer = Block(L"OUTER");
    AddLine(outer, 0, 2, 1, 2);
    Insert(outer, L"INNER");
    outer.SetDrawOrder({outer.EntityId(1), outer.EntityId(0)});
    EXPECT_EQ(LinesOf(outer), (Lines{"0,1 1,1", "0,0 1,0", "0,2 1,2"}));
}

// Points along a curve, from its start to its end.
std::vector<OxGePoint3d> PointsOn(const OxDbCurve& curve) {
    double start = 0.0;
    double end = 0.0;
    curve.getStartParam(start);
    curve.getEndParam(end);
    std::vector<OxGePoint3d> points;
    for (int i = 0; i <= 16; ++i) {
        OxGePoint3d point;
        curve.getPointAtParam(start + (end - start) * i / 16, point);
        points.push_back(point);
    }
    return points;
}

double Distance(const OxGePoint3d& a, const OxGePoint3d& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

double Largest(const std::vector<OxGePoint3d>& points, const std::vector<OxGePoint3d>& others) {
    double largest = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        largest = std::max(largest, Distance(points[i], others[i]));
    }
    return largest;
}

PlaneMap RandomMap(std::mt19937& random, bool keepsCircles) {
    std::uniform_real_distribution<double> number(-3.0, 3.0);
    const double x = number(random) + 4.0;
    const double y = keepsCircles ? x : number(random) + 4.0;
    const double side = random() % 2 == 0 ? 1.0 : -1.0;
    return PlaneMap::Move(number(random), number(random))
        .After(PlaneMap::Turn(number(random)))
        .After(PlaneMap::Scale(side * x, y))
        .After(PlaneMap::Turn(keepsCircles ? 0.0 : number(random)));
}

TEST_F(BlockCopy, CurvesGoWhereTheirPointsGo) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> number(-3.0, 3.0);
    for (int trial = 0; trial < 400; ++trial) {
        const bool keepsCircles = trial % 2 == 0;
        const PlaneMap map = RandomMap(random, keepsCircles);
        ASSERT_EQ(map.KeepsCircles(), keepsCircles);
        drawing::BlockRecord& from = Block(L"F" + std::to_wstring(trial));
        drawing::BlockRecord& to = Block(L"T" + std::to_wstring(trial));
        const OxGePoint3d center = {number(random), number(random), 0.0};
        const double start = number(random);
        const double end = start + 0.1 + std::fabs(number(random));
        from.Add<drawing::Line>(EntityProperties(), center, OxGePoint3d{1, 2, 0});
        from.Add<drawing::Arc>(
            EntityProperties(),
            drawing::ArcData{center, 2.0, start, end, {0.0, 0.0, trial % 4 < 2 ? 1.0 : -1.0}});
        from.Add<drawing::Circle>(EntityProperties(), center, 2.0);
        from.Add<drawing::Ellipse>(EntityProperties(),
                                   drawing::EllipseData{center, {number(random), 1.0, 0.0}, 0.4, start, end});
        if (keepsCircles) {
            from.Add<drawing::Polyline>(
                EntityProperties(),
                std::vector<drawing::BulgeVertex>{{{0, 0}, 0.5}, {{3, 1}, 0.0}, {{4, 4}, -0.3}}, true, false);
        }
        drawing::NurbsData nurbs;
        nurbs.degree = 2;
        nurbs.controlPoints = {{0, 0, 0}, {1, 3, 0}, {4, 1, 0}};
        nurbs.knots = {0, 0, 0, 1, 1, 1};
        nurbs.weights = {1, 2, 1};
        from.Add<drawing::Spline>(EntityProperties(), drawing::SplineData(nurbs));
        for (std::size_t i = 0; i < from.EntityCount(); ++i) {
            drawing::AddPlaced(to, from.EntityId(i), EntityProperties(), map);
            std::vector<OxGePoint3d> expected =
                PointsOn(static_cast<const OxDbCurve&>(*from.EntityId(i).stub()->object));
            for (OxGePoint3d& point : expected) {
                point = map.Of(point);
            }
            const auto& placed = static_cast<const OxDbCurve&>(*to.EntityId(i).stub()->object);
            std::vector<OxGePoint3d> points = PointsOn(placed);
            double largest = Largest(points, expected);
            if (placed.isKindOf(OxDbCircle::desc()) || placed.isClosed()) {
                // A whole turn may begin anywhere: its points lie on the same circle.
                continue;
            }
            std::reverse(points.begin(), points.end()); // ellipses may run the other way
            largest = std::min(largest, Largest(points, expected));
            ASSERT_LT(largest, 1e-9) << "trial " << trial << ", entity " << i;
        }
    }
}

// The signed area inside the edges, by points on them.
double AreaOf(const drawing::HatchLoop& loop) {
    double area = 0.0;
    OxGePoint2d last;
    bool isFirst = true;
    for (const drawing::HatchEdge& edge : loop.edges) {
        std::visit(
            [&](const auto& curve) {
                if constexpr (!std::is_same_v<std::decay_t<decltype(curve)>,
                                              std::shared_ptr<const OxGeNurbCurve2d>>) {
                    OxGeInterval interval;
                    OxGePoint2dArray points;
                    OxGeDoubleArray parameters;
                    curve.getInterval(interval);
                    curve.getSamplePoints(interval.lowerBound(), interval.upperBound(), 1e-7, points,
                                          parameters);
                    for (int i = 0; i < points.length(); ++i) {
                        area += isFirst ? 0.0 : 0.5 * (last.x * points[i].y - last.y * points[i].x);
                        last = points[i];
                        isFirst = false;
                    }
                }
            },
            edge);
    }
    return area;
}

TEST_F(BlockCopy, EdgesOfHatchesGoWithTheirAreas) {
    std::mt19937 random(4);
    for (int trial = 0; trial < 200; ++trial) {
        const PlaneMap map = RandomMap(random, trial % 2 == 0);
        drawing::HatchData data;
        drawing::HatchLoop loop;
        // Half a circle, and half an ellipse below it that runs clockwise in its own angles.
        loop.edges.emplace_back(OxGeCircArc2d({0, 0}, 2.0, 0.0, std::numbers::pi, false));
        loop.edges.emplace_back(OxGeEllipArc2d({0, 0}, {-2.0, 0.0}, 0.5, 0.0, std::numbers::pi, false));
        data.loops.push_back(loop);
        drawing::BlockRecord& block = Block(L"H" + std::to_wstring(trial));
        block.Add<drawing::Hatch>(EntityProperties(), data);
        drawing::AddPlaced(block, block.EntityId(0), EntityProperties(), map);
        const auto& placed = static_cast<const drawing::Hatch&>(*block.EntityId(1).stub()->object);
        const double expected = AreaOf(loop) * (map.a * map.d - map.b * map.c);
        ASSERT_GT(std::fabs(expected), 1.0);
        ASSERT_NEAR(AreaOf(placed.Data().loops[0]), expected, 1e-4 * std::fabs(expected)) << trial;
    }
}

// The point half way along a segment of a polyline.
OxGePoint2d MiddleOf(const drawing::BulgeVertex& from, const OxGePoint2d& to) {
    return {(from.point.x + to.x + from.bulge * (to.y - from.point.y)) / 2.0,
            (from.point.y + to.y - from.bulge * (to.x - from.point.x)) / 2.0};
}

TEST_F(BlockCopy, ArcsOfPolylinesFollowTheEllipsesThatTheyBecome) {
    drawing::BlockRecord& block = Block(L"A");
    block.Add<drawing::Polyline>(
        EntityProperties(), std::vector<drawing::BulgeVertex>{{{-1, 0}, 1.0}, {{1, 0}, 0.0}, {{5, 0}, 0.0}},
        false, false);
    for (const double mirror : {1.0, -1.0}) {
        drawing::AddPlaced(block, block.EntityId(0), EntityProperties(), PlaneMap::Scale(mirror * 3.0, 2.0));
        const OxDbObjectId last = block.EntityId(block.EntityCount() - 1);
        const auto& vertices = static_cast<const drawing::Polyline&>(*last.stub()->object).Vertices();
        ASSERT_LT(vertices.size(), 130U);
        EXPECT_EQ(vertices.back().point, (OxGePoint2d{15.0 * mirror, 0.0}));
        EXPECT_EQ(vertices[vertices.size() - 2].point, (OxGePoint2d{3.0 * mirror, 0.0}));
        for (std::size_t i = 0; i + 2 < vertices.size(); ++i) {
            for (const OxGePoint2d& point :
                 {vertices[i].point, MiddleOf(vertices[i], vertices[i + 1].point)}) {
                EXPECT_NEAR(std::hypot(point.x / 3.0, point.y / 2.0), 1.0, 6e-7);
                EXPECT_LT(point.y, 1e-9); // below the chord from left to right, mirrored or not
            }
        }
    }
}

TEST_F(BlockCopy, PatternsAndTextsAreTurnedAndScaled) {
    drawing::BlockRecord& block = Block(L"A");
    drawing::HatchData data;
    data.pattern.emplace().push_back({0.0, {1, 0}, {0, 2}, {1.0, -0.5}});
    block.Add<drawing::Hatch>(EntityProperties(), data);
    drawing::TextData text;
    text.position = {1, 0, 0};
    text.height = 2.0;
    block.Add<drawing::Text>(EntityProperties(), text);
    const PlaneMap map = PlaneMap::Turn(std::numbers::pi / 2).After(PlaneMap::Scale(3.0, 2.0));
    drawing::AddPlaced(block, block.EntityId(0), EntityProperties(), map);
    drawing::AddPlaced(block, block.EntityId(1), EntityProperties(), map);
    const auto& hatch = static_cast<const drawing::Hatch&>(*block.EntityId(2).stub()->object);
    const drawing::HatchFamily& family = (*hatch.Data().pattern)[0];
    EXPECT_NEAR(family.angle, std::numbers::pi / 2, 1e-15);
    EXPECT_NEAR(family.base.y, 3.0, 1e-15);
    EXPECT_NEAR(family.offset.x, -4.0, 1e-15);
    EXPECT_NEAR(family.dashes[0], 3.0, 1e-15);
    const auto& turned = static_cast<const drawing::Text&>(*block.EntityId(3).stub()->object);
    EXPECT_NEAR(turned.position().y, 3.0, 1e-15);
    EXPECT_NEAR(turned.height(), 4.0, 1e-15);
    EXPECT_NEAR(turned.rotation(), std::numbers::pi / 2, 1e-15);
}

} // namespace
