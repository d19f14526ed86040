// The way through a block's entities, and from each to its collector.
#include "StyleConversion/block/BlockConverter.h"

#include "OxDb/OxDb.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/Opened.h"

namespace {

// The ids of the block's entities in draw order; none when it has no draw-order table.
void ReadDrawOrder(OxDbBlockTableRecord& record, OxDbObjectIdArray& ids) {
    block::Opened<OxDbSortentsTable> order;
    if (order.Accept(record.getSortentsTable(order.Receive(), OxDb::kForRead, false))) {
        order->getFullDrawOrder(ids, 0);
    }
}

} // namespace

bool BlockConverter::ProcessBlock(OxDbBlockTableRecord& record, TylModel::SimpleSymbolDefinition& symbol) {
    const wchar_t* name = nullptr;
    if (record.getName(name) != Oxsys::eOk || name == nullptr) {
        return false;
    }
    symbol.SetName(name);
    block::BlockSymbol building(symbol, layersToIgnore_);
    ProcessInDrawOrder(record, building);
    AssignPointUsage(building);
    return true;
}

void BlockConverter::ProcessInDrawOrder(OxDbBlockTableRecord& record, block::BlockSymbol& symbol) {
    OxDbObjectIdArray ids;
    ReadDrawOrder(record, ids);
    if (!ids.isEmpty()) {
        for (const OxDbObjectId id : ids) {
            block::Opened<OxDbEntity> entity;
            if (entity.Accept(oxdbOpenOxDbEntity(entity.Receive(), id, OxDb::kForRead, false))) {
                ProcessEntity(record, *entity, symbol);
            }
        }
        return;
    }
    OxDbBlockTableRecordIterator* created = nullptr;
    const Oxsys::ErrorStatus status = record.newIterator(created, true, true);
    const auto iterator = block::Accepted(status, created);
    if (iterator == nullptr) {
        return;
    }
    for (iterator->start(true, true); !iterator->done(); iterator->step(true, true)) {
        block::Opened<OxDbEntity> entity;
        if (entity.Accept(iterator->getEntity(entity.Receive(), OxDb::kForRead, false))) {
            ProcessEntity(record, *entity, symbol);
        }
    }
}

void BlockConverter::ProcessEntity(const OxDbBlockTableRecord& record, OxDbEntity& entity,
                                   block::BlockSymbol& symbol) {
    if (symbol.IgnoresAnyLayer()) {
        const block::LayerName layer(entity);
        if (layer.Get() != nullptr && symbol.IgnoresLayer(layer.Get())) {
            return;
        }
    }
    // The order of the tests decides where one class derives from another.
    const auto is = [&](const OxRxClass* wanted) { return entity.isKindOf(wanted); };
    if (is(OxDbPoint::desc())) {
        CollectGeometryFromPoint(record, static_cast<OxDbPoint&>(entity), symbol);
    } else if (is(OxDbLine::desc())) {
        CollectGeometryFromLine(record, static_cast<OxDbLine&>(entity), symbol);
    } else if (is(OxDbPolyline::desc())) {
        CollectGeometryFromPolyline(record, static_cast<OxDbPolyline&>(entity), symbol);
    } else if (is(OxDbSpline::desc())) {
        CollectGeometryFromSpline(record, static_cast<OxDbSpline&>(entity), symbol);
    } else if (is(OxDbArc::desc())) {
        CollectGeometryFromArc(record, static_cast<OxDbArc&>(entity), symbol);
    } else if (is(OxDbCircle::desc())) {
        CollectGeometryFromCircle(record, static_cast<OxDbCircle&>(entity), symbol);
    } else if (is(OxDbEllipse::desc())) {
        CollectGeometryFromEllipse(record, static_cast<OxDbEllipse&>(entity), symbol);
    } else if (is(OxDbHatch::desc())) {
        CollectGeometryFromHatch(record, static_cast<OxDbHatch&>(entity), symbol);
    } else if (is(OxDbMPolygon::desc())) {
        CollectGeometryFromMPolygon(record, static_cast<OxDbMPolygon&>(entity), symbol);
    } else if (is(OxDbText::desc())) {
        CollectGeometryFromText(record, static_cast<OxDbText&>(entity), symbol);
    } else if (is(OxDbMText::desc())) {
        CollectGeometryFromMText(record, static_cast<OxDbMText&>(entity), symbol);
    }
}

void BlockConverter::AssignPointUsage(block::BlockSymbol& symbol) const {
    auto rotation = std::make_unique<TylModel::Parameter>();
    rotation->SetIdentifier(L"ROTATION");
    rotation->SetDisplayName(L"&Rotation");
    rotation->SetDescription(L"Rotation");
    rotation->SetDefaultValue(Double2TylString(0.0));
    rotation->SetDataType(TylModel::Parameter::kAngle);
    symbol.Adopt(std::move(rotation));

    auto usage = std::make_unique<TylModel::PointUsage>();
    usage->SetAngle(L"%ROTATION%");
    symbol.AdoptPointUsage(std::move(usage));
}
