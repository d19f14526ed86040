// Single calls that are told to fail.
#include "drawing/database/HostServices.h"
#include "drawing/entities/Areas.h"
#include "drawing/entities/CurveEntities.h"
#include "drawing/entities/SimpleEntities.h"
#include "tests/drawing/OpenedObjects.h"

#include <functional>
#include <set>
#include <vector>

namespace {

using drawing::Operation;

TEST(FailurePlan, TheNthCallFailsAndNoOther) {
    drawing::Database database;
    database.Failures().Fail(Operation::kGetLayerTable, 2, Oxsys::eOutOfMemory);
    std::vector<Oxsys::ErrorStatus> statuses;
    for (int call = 0; call < 3; ++call) {
        OxDbLayerTable* table = nullptr;
        statuses.push_back(database.getSymbolTable(table, OxDb::kForRead));
        EXPECT_EQ(table == nullptr, call == 1);
    }
    EXPECT_EQ(statuses, (std::vector<Oxsys::ErrorStatus>{Oxsys::eOk, Oxsys::eOutOfMemory, Oxsys::eOk}));
    EXPECT_EQ(database.Failures().FailedCalls(), 1U);
    EXPECT_EQ(database.Counts().opened, 2U);
}

TEST(FailurePlan, CallsAreCountedFromThePlan) {
    drawing::Database database;
    OpenTable<OxDbLayerTable>(database);
    database.Failures().Fail(Operation::kGetLayerTable, 1, Oxsys::eInvalidInput);
    OxDbLayerTable* table = nullptr;
    EXPECT_EQ(database.getSymbolTable(table, OxDb::kForRead), Oxsys::eInvalidInput);
}

TEST(FailurePlan, EveryCallFailsUntilCleared) {
    drawing::Database database;
    database.Failures().Fail(Operation::kGetBlockTable, 0, Oxsys::eInvalidInput);
    OxDbBlockTable* table = nullptr;
    EXPECT_EQ(database.getSymbolTable(table, OxDb::kForRead), Oxsys::eInvalidInput);
    EXPECT_EQ(database.getSymbolTable(table, OxDb::kForRead), Oxsys::eInvalidInput);
    EXPECT_EQ(database.Failures().FailedCalls(), 2U);
    database.Failures().Clear();
    EXPECT_EQ(database.Failures().AllCalls(), 0U);
    EXPECT_EQ(database.getSymbolTable(table, OxDb::kForRead), Oxsys::eOk);
    EXPECT_EQ(database.Failures().Calls(Operation::kGetBlockTable), 1U);
}

TEST(FailurePlan, ACallMaySucceedAndGiveNothing) {
    drawing::Database database;
    database.Failures().Fail(Operation::kGetBlockTable, 1, Oxsys::eOk);
    OxDbBlockTable* table = nullptr;
    EXPECT_EQ(database.getSymbolTable(table, OxDb::kForRead), Oxsys::eOk);
    EXPECT_EQ(table, nullptr);
    EXPECT_TRUE(database.IsEverythingClosed());
}

TEST(FailurePlan, AnyCallCanBeTheOneThatFails) {
    drawing::Database database;
    database.AddLayer(L"A", ColorOfIndex(1));
    for (std::uint64_t nth = 1; nth <= 4; ++nth) {
        database.Failures().Clear();
        database.Failures().FailAnyCall(nth, Oxsys::eOutOfMemory);
        OxDbLayerTable* table = nullptr;
        OxDbLayerTableRecord* layer = nullptr;
        const wchar_t* name = nullptr;
        const bool opened = database.getSymbolTable(table, OxDb::kForRead) == Oxsys::eOk;
        const bool found = opened && table->getAt(L"A", layer, OxDb::kForRead) == Oxsys::eOk;
        const bool named = found && layer->getName(name) == Oxsys::eOk;
        EXPECT_EQ(opened, nth > 1);
        EXPECT_EQ(found, nth > 2);
        EXPECT_EQ(named, nth > 3);
        EXPECT_EQ(database.Failures().FailedCalls(), nth < 4 ? 1U : 0U);
    }
}

TEST(FailurePlan, AFailingCloseClosesAllTheSame) {
    drawing::Database database;
    auto* const table = OpenTable<OxDbLayerTable>(database);
    database.Failures().Fail(Operation::kClose, 1, Oxsys::eInvalidInput);
    EXPECT_EQ(table->close(), Oxsys::eInvalidInput);
    EXPECT_TRUE(database.IsEverythingClosed());
}

/// A drawing with one of everything, and a call of every operation.
class EveryOperation : public testing::Test {
protected:
    EveryOperation() {
        services.ShareFailures(database.Failures());
        database.AddLayer(L"L", ColorOfIndex(1));
        style = database.AddTextStyle(L"S", {});
        linetype = database.AddLinetype(L"T", {DashOf(1.0, L"S")});
        block = database.AddBlock(L"B");
        line = &block->Add<drawing::Line>({}, OxGePoint3d{}, OxGePoint3d{1, 0, 0});
        polyline = &block->Add<drawing::Polyline>(
            {}, std::vector<drawing::BulgeVertex>{{{0, 0}, 0.0}, {{1, 0}, 1.0}, {{2, 0}, 0.0}}, false, false);
        fit = &block->Add<drawing::Spline>({}, FitThrough({{0, 0, 0}, {1, 0, 0}}));
        nurbs = &block->Add<drawing::Spline>({}, PolygonThrough({{0, 0, 0}, {1, 0, 0}}));
        drawing::HatchData data;
        data.loops.resize(2);
        data.loops[1].polyline = drawing::PolylineLoop();
        data.lines = {{{{0, 0}, {1, 0}}}};
        hatch = &block->Add<drawing::Hatch>({}, std::move(data));
        polygon = &block->Add<drawing::MPolygon>({}, std::vector<drawing::PolylineLoop>(1), OxCmColor());
        block->Add<drawing::BlockReference>({}, std::wstring(L"B"));
        block->SetDrawOrder({line->objectId()});
    }

    /// The status of a call of `operation`; eOutOfMemory, too, for one that reports failure by null.
    Oxsys::ErrorStatus Call(Operation operation);

    template <class T, class... Args>
    Oxsys::ErrorStatus Open(Oxsys::ErrorStatus status, T*& object) {
        EXPECT_EQ(object == nullptr, status != Oxsys::eOk);
        if (object != nullptr) {
            object->close();
        }
        return status;
    }
    Oxsys::ErrorStatus CallTables(Operation operation);
    Oxsys::ErrorStatus CallBlocks(Operation operation);
    Oxsys::ErrorStatus CallCurves(Operation operation);
    Oxsys::ErrorStatus CallAreasAndTexts(Operation operation);

    drawing::Database database;
    drawing::HostServices services{{L"."}};
    drawing::TextStyleRecord* style;
    drawing::LinetypeRecord* linetype;
    drawing::BlockRecord* block;
    drawing::Line* line;
    drawing::Polyline* polyline;
    drawing::Spline* fit;
    drawing::Spline* nurbs;
    drawing::Hatch* hatch;
    drawing::MPolygon* polygon;
};

constexpr auto kNotHere = static_cast<Oxsys::ErrorStatus>(-1);

Oxsys::ErrorStatus EveryOperation::CallTables(Operation operation) {
    OxDbBlockTable* blocks = nullptr;
    OxDbLayerTable* layers = nullptr;
    OxDbTextStyleTable* styles = nullptr;
    const wchar_t* name = nullptr;
    switch (operation) {
    case Operation::kGetBlockTable:
        return Open(database.getSymbolTable(blocks, OxDb::kForRead), blocks);
    case Operation::kGetLayerTable:
        return Open(database.getSymbolTable(layers, OxDb::kForRead), layers);
    case Operation::kGetTextStyleTable:
        return Open(database.getSymbolTable(styles, OxDb::kForRead), styles);
    case Operation::kBlockTableGetAt: {
        OxDbBlockTableRecord* record = nullptr;
        return Open(OpenTable<OxDbBlockTable>(database)->getAt(L"B", record, OxDb::kForRead), record);
    }
    case Operation::kLayerTableGetAt: {
        OxDbLayerTableRecord* record = nullptr;
        return Open(OpenTable<OxDbLayerTable>(database)->getAt(L"L", record, OxDb::kForRead), record);
    }
    case Operation::kTextStyleTableGetAt: {
        OxDbTextStyleTableRecord* record = nullptr;
        return Open(OpenTable<OxDbTextStyleTable>(database)->getAt(L"S", record, OxDb::kForRead), record);
    }
    case Operation::kBlockGetName:
        return block->getName(name);
    case Operation::kLinetypeGetName:
        return linetype->getName(name);
    case Operation::kTextStyleGetName:
        return style->getName(name);
    case Operation::kLayerGetName: {
        OxDbLayerTableRecord* record = nullptr;
        OpenTable<OxDbLayerTable>(database)->getAt(L"L", record, OxDb::kForRead);
        return record->getName(name);
    }
    case Operation::kClose:
        return OpenTable<OxDbLayerTable>(database)->close();
    default:
        return kNotHere;
    }
}

Oxsys::ErrorStatus EveryOperation::CallBlocks(Operation operation) {
    OxDbEntity* entity = nullptr;
    OxDbObject* object = nullptr;
    std::unique_ptr<OxDbBlockTableIterator> blocks;
    const auto own = [](Oxsys::ErrorStatus status, auto* iterator) {
        EXPECT_EQ(iterator == nullptr, status != Oxsys::eOk);
        delete iterator;
        return status;
    };
    switch (operation) {
    case Operation::kOpenEntity:
        return Open(oxdbOpenOxDbEntity(entity, line->objectId(), OxDb::kForRead), entity);
    case Operation::kOpenObject:
        return Open(oxdbOpenOxDbObject(object, line->objectId(), OxDb::kForRead, OxDbLine::desc()), object);
    case Operation::kBlockTableNewIterator: {
        OxDbBlockTableIterator* iterator = nullptr;
        const Oxsys::ErrorStatus status = OpenTable<OxDbBlockTable>(database)->newIterator(iterator);
        return own(status, iterator);
    }
    case Operation::kBlockTableIteratorGetRecord: {
        OxDbBlockTableIterator* iterator = nullptr;
        OpenTable<OxDbBlockTable>(database)->newIterator(iterator);
        blocks.reset(iterator);
        OxDbBlockTableRecord* record = nullptr;
        return Open(blocks->getRecord(record, OxDb::kForRead), record);
    }
    case Operation::kGetSortentsTable: {
        OxDbSortentsTable* table = nullptr;
        return Open(block->getSortentsTable(table, OxDb::kForRead, false), table);
    }
    case Operation::kGetFullDrawOrder: {
        OxDbSortentsTable* table = nullptr;
        block->getSortentsTable(table, OxDb::kForRead, false);
        OxDbObjectIdArray ids;
        const Oxsys::ErrorStatus status = table->getFullDrawOrder(ids, 0);
        EXPECT_EQ(ids.isEmpty(), status != Oxsys::eOk);
        return status;
    }
    case Operation::kBlockNewIterator: {
        OxDbBlockTableRecordIterator* iterator = nullptr;
        const Oxsys::ErrorStatus status = block->newIterator(iterator, true, true);
        return own(status, iterator);
    }
    case Operation::kBlockIteratorGetEntity: {
        OxDbBlockTableRecordIterator* iterator = nullptr;
        block->newIterator(iterator, true, true);
        const std::unique_ptr<OxDbBlockTableRecordIterator> owner(iterator);
        return Open(iterator->getEntity(entity, OxDb::kForRead), entity);
    }
    case Operation::kNewBlockReferenceIterator: {
        OxDbBlockReferenceIdIterator* iterator = nullptr;
        const Oxsys::ErrorStatus status = block->newBlockReferenceIdIterator(iterator);
        return own(status, iterator);
    }
    case Operation::kGetBlockReference: {
        OxDbBlockReferenceIdIterator* iterator = nullptr;
        block->newBlockReferenceIdIterator(iterator);
        const std::unique_ptr<OxDbBlockReferenceIdIterator> owner(iterator);
        OxDbBlockReference* reference = nullptr;
        return Open(iterator->getBlockReference(reference, OxDb::kForRead), reference);
    }
    default:
        return kNotHere;
    }
}

Oxsys::ErrorStatus EveryOperation::CallCurves(Operation operation) {
    double parameter = 0;
    OxGePoint3d point;
    OxGeLineSeg2d segment;
    OxGeCircArc3d arc;
    OxGePoint3dArray points;
    OxGeDoubleArray numbers;
    OxGeVector3d vector;
    int degree = 0;
    bool flag = false;
    switch (operation) {
    case Operation::kGetStartParam:
        return line->getStartParam(parameter);
    case Operation::kGetEndParam:
        return line->getEndParam(parameter);
    case Operation::kGetPointAtParam:
        return line->getPointAtParam(0.0, point);
    case Operation::kGetStartPoint:
        return line->getStartPoint(point);
    case Operation::kGetEndPoint:
        return line->getEndPoint(point);
    case Operation::kGetLineSegAt:
        return polyline->getLineSegAt(0, segment);
    case Operation::kGetArcSegAt:
        return polyline->getArcSegAt(1, arc);
    case Operation::kGetFitData:
        return fit->getFitData(points, degree, parameter, flag, vector, vector);
    case Operation::kGetNurbsData:
        return nurbs->getNurbsData(degree, flag, flag, flag, points, numbers, numbers, parameter, parameter);
    default:
        return kNotHere;
    }
}

Oxsys::ErrorStatus EveryOperation::CallAreasAndTexts(Operation operation) {
    int type = 0;
    OxArray<const OxGeCurve2d*> edges;
    OxArray<int> types;
    OxGePoint2dArray vertices;
    OxGeDoubleArray bulges;
    OxGePoint2d start;
    OxGePoint2d end;
    const auto own = [](Oxsys::ErrorStatus status, wchar_t* text) {
        EXPECT_EQ(text == nullptr, status != Oxsys::eOk);
        delete[] text;
        return status;
    };
    wchar_t* text = nullptr;
    switch (operation) {
    case Operation::kEntityLayer: {
        wchar_t* buffer = line->layer();
        const bool isThere = buffer != nullptr;
        oxutDelBuffer(buffer);
        return isThere ? Oxsys::eOk : Oxsys::eOutOfMemory;
    }
    case Operation::kEvaluateHatch:
        return hatch->evaluateHatch(true);
    case Operation::kGetHatchLineDataAt:
        EXPECT_EQ(hatch->evaluateHatch(true), Oxsys::eOk);
        return hatch->getHatchLineDataAt(0, start, end);
    case Operation::kGetEdgeLoopAt:
        return hatch->getLoopAt(0, type, edges, types);
    case Operation::kGetPolylineLoopAt:
        return hatch->getLoopAt(1, type, vertices, bulges);
    case Operation::kGetMPolygonLoopAt:
        return polygon->getMPolygonLoopAt(0, vertices, bulges);
    case Operation::kTextStyleFileName: {
        const Oxsys::ErrorStatus status = style->fileName(text);
        return own(status, text);
    }
    case Operation::kTextStyleBigFontFileName: {
        const Oxsys::ErrorStatus status = style->bigFontFileName(text);
        return own(status, text);
    }
    case Operation::kTextStyleFont: {
        bool flag = false;
        std::int32_t number = 0;
        const Oxsys::ErrorStatus status = style->font(text, flag, flag, number, number);
        return own(status, text);
    }
    case Operation::kTextAt: {
        const wchar_t* read = nullptr;
        return linetype->textAt(0, read);
    }
    case Operation::kFindFile: {
        wchar_t path[16];
        // No such file: a planned failure is told from it by its status.
        const Oxsys::ErrorStatus status =
            services.findFile(path, 16, L"no such file", nullptr, OxDbHostApplicationServices::kDefault);
        return status == Oxsys::eFileNotFound ? Oxsys::eOk : status;
    }
    default:
        return kNotHere;
    }
}

Oxsys::ErrorStatus EveryOperation::Call(Operation operation) {
    for (const auto call : {&EveryOperation::CallTables, &EveryOperation::CallBlocks,
                            &EveryOperation::CallCurves, &EveryOperation::CallAreasAndTexts}) {
        const Oxsys::ErrorStatus status = (this->*call)(operation);
        if (status != kNotHere) {
            return status;
        }
    }
    return kNotHere;
}

TEST_F(EveryOperation, FailsWhenItIsToldToAndOnlyThen) {
    std::set<std::string> names;
    for (std::size_t index = 0; index < drawing::kOperationCount; ++index) {
        const auto operation = static_cast<Operation>(index);
        SCOPED_TRACE(drawing::OperationName(operation));
        EXPECT_TRUE(names.insert(drawing::OperationName(operation)).second);
        database.Failures().Clear();
        EXPECT_EQ(Call(operation), Oxsys::eOk);
        EXPECT_GE(database.Failures().Calls(operation), 1U);
        EXPECT_EQ(database.Failures().FailedCalls(), 0U);
        database.Failures().Fail(operation, 1, Oxsys::eOutOfMemory);
        EXPECT_EQ(Call(operation), Oxsys::eOutOfMemory);
        EXPECT_EQ(database.Failures().FailedCalls(), 1U);
    }
}

} // namespace
