// The way from a block to its graphics: names, order, layers, classes, the point usage.
#include "StyleConversion/block/EntityClass.h"
#include "tests/block/BlockTest.h"

namespace blocktest {
namespace {

using drawing::Operation;
using Paths = std::vector<std::wstring>;

class EntityWalk : public BlockTest {
protected:
    // A point at (x, 0); its path tells which one it is.
    OxDbObjectId AddPoint(int x, const std::wstring& layer = L"0") {
        drawing::EntityProperties properties = Solid();
        properties.layer = layer;
        return block.Add<drawing::Point>(properties, OxGePoint3d{static_cast<double>(x), 0, 0}).objectId();
    }

    static std::wstring PathOf(int x) {
        const std::wstring place = std::to_wstring(x) + L".0,0.0";
        return L"M " + place + L" L " + place;
    }
};

TEST_F(EntityWalk, SymbolIsNamedAfterTheBlockInItsOwnSpelling) {
    EXPECT_EQ(Convert(L"b")->GetName(), L"B");
}

TEST_F(EntityWalk, SymbolOfAnEmptyBlockHasItsNameTheRotationAndThePointUsageOnly) {
    const Symbol symbol = Convert();
    EXPECT_EQ(symbol->GetName(), L"B");
    EXPECT_EQ(symbol->GetDescription(), L"");
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 0);
    ASSERT_EQ(symbol->GetParameterDefinition().GetCount(), 1);
    const TylModel::Parameter& rotation = ParameterAt(symbol, 0);
    EXPECT_EQ(rotation.GetIdentifier(), L"ROTATION");
    EXPECT_EQ(rotation.GetDisplayName(), L"&Rotation");
    EXPECT_EQ(rotation.GetDescription(), L"Rotation");
    EXPECT_EQ(rotation.GetDefaultValue(), L"0.0");
    EXPECT_EQ(static_cast<int>(rotation.GetDataType()), 5);
    ASSERT_NE(symbol->GetPointUsage(), nullptr);
    EXPECT_EQ(symbol->GetPointUsage()->GetAngle(), L"%ROTATION%");
    EXPECT_EQ(symbol->GetLineUsage(), nullptr);
    EXPECT_EQ(symbol->GetAreaUsage(), nullptr);
}

TEST_F(EntityWalk, RotationComesBehindTheParametersOfColoursAndLineWeights) {
    block.Add<drawing::Point>(Drawn(L"0", ByLayer(), -1), OxGePoint3d{});
    EXPECT_EQ(Identifiers(Convert()), (Paths{L"COLORBYLAYER0", L"LWBYLAYER0", L"ROTATION"}));
}

TEST_F(EntityWalk, EntitiesComeInTheOrderOfCreationWithoutADrawOrder) {
    AddPoint(3);
    AddPoint(1);
    AddPoint(2);
    EXPECT_EQ(Geometries(), (Paths{PathOf(3), PathOf(1), PathOf(2)}));
}

TEST_F(EntityWalk, EntitiesComeInDrawOrderAndOnlyThoseThatItLists) {
    const OxDbObjectId first = AddPoint(1);
    AddPoint(2);
    const OxDbObjectId third = AddPoint(3);
    block.SetDrawOrder({third, first});
    EXPECT_EQ(Geometries(), (Paths{PathOf(3), PathOf(1)}));
}

TEST_F(EntityWalk, EmptyDrawOrderFallsBackToTheOrderOfCreation) {
    AddPoint(1);
    block.SetDrawOrder({});
    EXPECT_EQ(Geometries(), Paths{PathOf(1)});
}

TEST_F(EntityWalk, DrawOrderThatCannotBeReadFallsBackToTheOrderOfCreation) {
    const OxDbObjectId first = AddPoint(1);
    const OxDbObjectId second = AddPoint(2);
    block.SetDrawOrder({second, first});
    database.Failures().Fail(Operation::kGetFullDrawOrder, 1, Oxsys::eInvalidInput);
    EXPECT_EQ(Geometries(), (Paths{PathOf(1), PathOf(2)}));
    database.Failures().Clear();
    database.Failures().Fail(Operation::kGetSortentsTable, 1, Oxsys::eInvalidInput);
    EXPECT_EQ(Geometries(), (Paths{PathOf(1), PathOf(2)}));
}

TEST_F(EntityWalk, EntityOfTheDrawOrderThatCannotBeOpenedIsSkipped) {
    const OxDbObjectId first = AddPoint(1);
    const OxDbObjectId erased = AddPoint(2);
    const OxDbObjectId third = AddPoint(3);
    drawing::Database::Erase(erased);
    block.SetDrawOrder({third, erased, OxDbObjectId(), block.objectId(), first});
    EXPECT_EQ(Geometries(), (Paths{PathOf(3), PathOf(1)}));
}

TEST_F(EntityWalk, EntityOfTheIteratorThatCannotBeOpenedIsSkipped) {
    AddPoint(1);
    AddPoint(2);
    AddPoint(3);
    database.Failures().Fail(Operation::kBlockIteratorGetEntity, 2, Oxsys::eUnknownObject);
    EXPECT_EQ(Geometries(), (Paths{PathOf(1), PathOf(3)}));
}

TEST_F(EntityWalk, BlockWithoutAnIteratorBecomesASymbolWithoutGraphics) {
    AddPoint(1);
    database.Failures().Fail(Operation::kBlockNewIterator, 1, Oxsys::eInvalidInput);
    const Symbol symbol = Convert();
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 0);
    EXPECT_NE(symbol->GetPointUsage(), nullptr);
}

TEST_F(EntityWalk, LayersToIgnoreAreComparedExactly) {
    database.AddLayer(L"Walls", Index(1));
    AddPoint(1, L"Walls");
    AddPoint(2, L"Wall");
    struct Case {
        Paths ignored;
        Paths drawn;
    };
    const Paths all{PathOf(1), PathOf(2)};
    const Case cases[] = {
        {{L"Walls"}, {PathOf(2)}},
        {{L"Doors", L"Walls", L"Walls"}, {PathOf(2)}},
        {{L"walls"}, all},
        {{L"WALLS"}, all},
        {{L"Walls "}, all},
        {{L" Walls"}, all},
        {{L""}, all},
        {{L"Walls", L"Wall"}, {}},
    };
    BlockConverter converter(&database);
    for (const Case& row : cases) {
        converter.SetLayersToIgnore(row.ignored);
        const Symbol symbol(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
        Paths drawn;
        for (std::int32_t i = 0; i < symbol->GetGraphics().GetCount(); ++i) {
            drawn.push_back(PathAt(symbol, i).GetGeometry());
        }
        EXPECT_EQ(drawn, row.drawn) << ::testing::PrintToString(row.ignored);
    }
}

TEST_F(EntityWalk, LayerFilterComparesTheEntitysOwnSpelling) {
    database.AddLayer(L"Walls", Index(1));
    AddPoint(1, L"WALLS");
    BlockConverter converter(&database);
    converter.SetLayersToIgnore({L"Walls"});
    const Symbol kept(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
    EXPECT_EQ(kept->GetGraphics().GetCount(), 1);
    converter.SetLayersToIgnore({L"WALLS"});
    const Symbol dropped(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
    EXPECT_EQ(dropped->GetGraphics().GetCount(), 0);
}

TEST_F(EntityWalk, IgnoredEntityLeavesNoParameter) {
    database.AddLayer(L"Walls", Index(1));
    block.Add<drawing::Point>(Drawn(L"Walls", ByLayer(), -1), OxGePoint3d{});
    BlockConverter converter(&database);
    converter.SetLayersToIgnore({L"Walls"});
    const Symbol symbol(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
    EXPECT_EQ(Identifiers(symbol), Paths{L"ROTATION"});
}

TEST_F(EntityWalk, EntityWhoseLayerCannotBeReadIsDrawn) {
    AddPoint(1);
    BlockConverter converter(&database);
    converter.SetLayersToIgnore({L"0", L""});
    database.Failures().Fail(Operation::kEntityLayer, 1, Oxsys::eInvalidInput);
    const Symbol symbol(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 1);
}

TEST_F(EntityWalk, CopiesOfAConverterHaveTheirOwnListOfLayers) {
    AddPoint(1);
    BlockConverter converter(&database);
    converter.SetLayersToIgnore({L"0"});
    BlockConverter copy(converter);
    converter.SetLayersToIgnore({});
    const Symbol without(dynamic_cast<TylModel::SimpleSymbolDefinition*>(copy.Convert(L"B")));
    EXPECT_EQ(without->GetGraphics().GetCount(), 0);
    const Symbol with(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
    EXPECT_EQ(with->GetGraphics().GetCount(), 1);
}

TEST_F(EntityWalk, InsertsAndUnknownEntitiesAreIgnored) {
    block.Add<drawing::BlockReference>(Solid(), L"B");
    block.Add<drawing::OtherEntity>(Solid(), L"OxDbDimension");
    block.Add<drawing::OtherEntity>(Drawn(L"0", ByLayer(), -1), L"OxDbFace");
    const Symbol symbol = Convert();
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 0);
    EXPECT_EQ(Identifiers(symbol), Paths{L"ROTATION"});
}

// A class of the host that derives from one of the drawing's: entities of it are seen as the base class.
class SurveyPoint : public drawing::Point {
public:
    using Point::Point;
    const OxRxClass* isA() const override { return Class(); }
    static const OxRxClass* Class() {
        static const OxRxClass kClass(L"SurveyPoint", OxDbPoint::desc());
        return &kClass;
    }
};

class DeepSurveyPoint : public SurveyPoint {
public:
    using SurveyPoint::SurveyPoint;
    const OxRxClass* isA() const override {
        static const OxRxClass kClass(L"DeepSurveyPoint", SurveyPoint::Class());
        return &kClass;
    }
};

TEST_F(EntityWalk, EntityOfADerivedClassGoesToTheCollectorOfItsBaseClass) {
    block.Add<SurveyPoint>(Solid(), OxGePoint3d{1, 0, 0});
    block.Add<DeepSurveyPoint>(Solid(), OxGePoint3d{2, 0, 0});
    EXPECT_EQ(Geometries(), (Paths{PathOf(1), PathOf(2)}));
}

// An entity that is known for what it is only when it is asked for the Turn-th time: it is drawn only by a
// converter that tries its class in that place.
template <class Entity, int Turn>
class KnownInTurn : public Entity {
public:
    using Entity::Entity;
    const OxRxClass* isA() const override { return asked_++ == Turn ? Entity::isA() : OxDbEntity::desc(); }

private:
    mutable int asked_ = 0; // the opening is the first to ask
};

TEST_F(EntityWalk, ClassesAreTriedInAFixedOrder) {
    using drawing::BulgeVertex;
    const OxGePoint3d origin;
    drawing::FitData fit;
    fit.points = {{0, 0, 0}, {3, 1, 0}};
    drawing::HatchData hatch;
    hatch.lines = std::vector<drawing::HatchLine>{{{0, 0}, {1, 0}}};
    const drawing::PolylineLoop triangle{{{{0, 0}}, {{1, 0}}, {{1, 1}}}, false};
    block.Add<KnownInTurn<drawing::Point, 1>>(Solid(), origin);
    block.Add<KnownInTurn<drawing::Line, 2>>(Solid(), origin, OxGePoint3d{1, 0, 0});
    block.Add<KnownInTurn<drawing::Polyline, 3>>(Solid(), std::vector<BulgeVertex>{{{0, 0}}, {{1, 0}}}, false,
                                                 false);
    block.Add<KnownInTurn<drawing::Spline, 4>>(Solid(), fit);
    block.Add<KnownInTurn<drawing::Arc, 5>>(Solid(), drawing::ArcData{});
    block.Add<KnownInTurn<drawing::Circle, 6>>(Solid(), origin, 1.0);
    block.Add<KnownInTurn<drawing::Ellipse, 7>>(Solid(), drawing::EllipseData{});
    block.Add<KnownInTurn<drawing::Hatch, 8>>(Solid(), std::move(hatch));
    block.Add<KnownInTurn<drawing::MPolygon, 9>>(Solid(), std::vector<drawing::PolylineLoop>{triangle},
                                                 ByBlock());
    block.Add<KnownInTurn<drawing::Text, 10>>(Solid(), drawing::TextData{});
    block.Add<KnownInTurn<drawing::ParagraphText, 11>>(Solid(), drawing::ParagraphTextData{});
    EXPECT_EQ(Convert()->GetGraphics().GetCount(), 11);
}

TEST(EntityClass, DashesAreForLinesPolylinesSplinesArcsAndCircles) {
    using block::EntityClass;
    for (const EntityClass dashed : {EntityClass::kLine, EntityClass::kPolyline, EntityClass::kSpline,
                                     EntityClass::kArc, EntityClass::kCircle}) {
        EXPECT_TRUE(block::HasDashes(dashed));
    }
    for (const EntityClass solid :
         {EntityClass::kPoint, EntityClass::kEllipse, EntityClass::kHatch, EntityClass::kMPolygon,
          EntityClass::kText, EntityClass::kMText, EntityClass::kNotDrawn}) {
        EXPECT_FALSE(block::HasDashes(solid));
    }
}

TEST_F(EntityWalk, EveryEntityStartsAPathOfItsOwn) {
    const OxGePoint3d origin;
    const drawing::PolylineLoop triangle{{{{0, 0}}, {{1, 0}}, {{1, 1}}}, false};
    drawing::FitData fit;
    fit.points = {{0, 0, 0}, {3, 1, 0}};
    for (int i = 0; i < 2; ++i) {
        block.Add<drawing::Point>(Solid(), origin);
        block.Add<drawing::Line>(Solid(), origin, OxGePoint3d{1, 0, 0});
        block.Add<drawing::Polyline>(Solid(), std::vector<drawing::BulgeVertex>{{{0, 0}}, {{1, 0}}}, false,
                                     false);
        block.Add<drawing::Spline>(Solid(), fit);
        block.Add<drawing::Arc>(Solid(), drawing::ArcData{});
        block.Add<drawing::Circle>(Solid(), origin, 1.0);
        block.Add<drawing::Ellipse>(Solid(), drawing::EllipseData{});
        drawing::HatchData lines;
        lines.lines = std::vector<drawing::HatchLine>{{{0, 0}, {1, 0}}};
        block.Add<drawing::Hatch>(Solid(), std::move(lines));
        drawing::HatchData solid;
        solid.solid = true;
        solid.loops.emplace_back();
        solid.loops.back().polyline = triangle;
        block.Add<drawing::Hatch>(Solid(), std::move(solid));
        block.Add<drawing::MPolygon>(Solid(), std::vector<drawing::PolylineLoop>{triangle}, ByBlock());
    }
    const Paths paths = Geometries();
    ASSERT_EQ(paths.size(), 20U);
    for (std::size_t i = 0; i < 10; ++i) {
        EXPECT_EQ(paths[i], paths[i + 10]);
    }
}

TEST_F(EntityWalk, EntityOfNoneOfTheClassesIsAskedForElevenAndLeftOut) {
    block.Add<KnownInTurn<drawing::Point, 12>>(Solid(), OxGePoint3d{});
    EXPECT_EQ(Convert()->GetGraphics().GetCount(), 0);
}

TEST_F(EntityWalk, ConvertsLayoutsAndAnonymousBlocksByName) {
    drawing::BlockData data;
    data.layout = true;
    database.AddBlock(L"*Model_Space", data);
    EXPECT_EQ(Convert(L"*Model_Space")->GetName(), L"*Model_Space");
}

TEST_F(EntityWalk, UnknownBlockGivesNothing) {
    BlockConverter converter(&database);
    EXPECT_EQ(converter.Convert(L"NOWHERE"), nullptr);
    drawing::Database::Erase(block.objectId());
    EXPECT_EQ(converter.Convert(L"B"), nullptr);
}

TEST_F(EntityWalk, NoDatabaseGivesNothing) {
    BlockConverter converter(nullptr);
    EXPECT_EQ(converter.Convert(L"B"), nullptr);
    EXPECT_EQ(converter.Convert(&block), nullptr);
    converter.SetLayersToIgnore({L"0"});
}

TEST_F(EntityWalk, FailingTableRecordOrNameGivesNothing) {
    BlockConverter converter(&database);
    for (const Operation operation :
         {Operation::kGetBlockTable, Operation::kBlockTableGetAt, Operation::kBlockGetName}) {
        for (const Oxsys::ErrorStatus status : {Oxsys::eInvalidInput, Oxsys::eOk}) {
            database.Failures().Clear();
            database.Failures().Fail(operation, 1, status);
            EXPECT_EQ(converter.Convert(L"B"), nullptr) << drawing::OperationName(operation);
            EXPECT_TRUE(database.IsEverythingClosed()) << drawing::OperationName(operation);
        }
    }
}

TEST_F(EntityWalk, RecordOfTheCallerIsConvertedAndStaysOpen) {
    AddPoint(1);
    OxDbBlockTable* table = nullptr;
    OxDbBlockTableRecord* record = nullptr;
    ASSERT_EQ(database.getSymbolTable(table, OxDb::kForRead), Oxsys::eOk);
    ASSERT_EQ(table->getAt(L"B", record, OxDb::kForRead, false), Oxsys::eOk);
    table->close();
    BlockConverter converter(&database);
    const Symbol symbol(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(record)));
    ASSERT_NE(symbol, nullptr);
    EXPECT_EQ(symbol->GetName(), L"B");
    EXPECT_EQ(drawing::Database::OpenCount(block.objectId()), 1U);
    database.Failures().Fail(Operation::kBlockGetName, 1, Oxsys::eInvalidInput);
    EXPECT_EQ(converter.Convert(record), nullptr);
    EXPECT_EQ(drawing::Database::OpenCount(block.objectId()), 1U);
    record->close();
    EXPECT_EQ(converter.Convert(static_cast<OxDbBlockTableRecord*>(nullptr)), nullptr);
}

} // namespace
} // namespace blocktest
