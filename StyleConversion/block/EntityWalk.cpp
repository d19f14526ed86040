// The way through a block's entities, and from each to its collector.
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/EntityClass.h"
#include "StyleConversion/block/Opened.h"

#include <memory>

namespace {

// The ids of the block's entities in draw order; none when it has no draw-order table.
void ReadDrawOrder(OxDbBlockTableRecord& record, host::ObjectIds& ids) {
    block::Opened<OxDbSortentsTable> order;
    if (order.Accept(record.getSortentsTable(order.Receive(), host::kForRead, false))) {
        static_cast<void>(order->getFullDrawOrder(ids, 0));
    }
}

// Calls `use` with each entity, in draw order or, without one, in the order of creation. What cannot be
// opened is skipped.
template <class Use>
void ForEachEntity(OxDbBlockTableRecord& record, Use use) {
    host::ObjectIds ids;
    ReadDrawOrder(record, ids);
    const int count = host::LengthOf(ids);
    for (int i = 0; i < count; ++i) {
        block::Opened<OxDbEntity> entity;
        if (entity.Accept(
                oxdbOpenOxDbEntity(entity.Receive(), host::ElementAt(ids, i), host::kForRead, false))) {
            use(*entity);
        }
    }
    if (count > 0) {
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
        if (entity.Accept(iterator->getEntity(entity.Receive(), host::kForRead, false))) {
            use(*entity);
        }
    }
}

} // namespace

bool BlockConverter::ProcessBlock(OxDbBlockTableRecord& record, TylModel::SimpleSymbolDefinition& symbol) {
    const wchar_t* name = nullptr;
    if (record.getName(name) != Oxsys::eOk || name == nullptr) {
        return false;
    }
    symbol.SetName(std::wstring(name));
    block::BlockSymbol building(symbol, layersToIgnore_);
    ForEachEntity(record, [&](OxDbEntity& entity) { ProcessEntity(record, entity, building); });
    AssignPointUsage(building);
    return true;
}

void BlockConverter::ProcessEntity(OxDbBlockTableRecord& record, OxDbEntity& entity,
                                   block::BlockSymbol& symbol) {
    if (symbol.IgnoresAnyLayer()) {
        const block::LayerName layer(entity);
        if (layer.Get() != nullptr && symbol.IgnoresLayer(layer.Get())) {
            return;
        }
    }
    switch (block::ClassOf(entity)) {
    case block::EntityClass::kPoint:
        return CollectGeometryFromPoint(record, host::As<OxDbPoint>(entity), symbol);
    case block::EntityClass::kLine:
        return CollectGeometryFromLine(record, host::As<OxDbLine>(entity), symbol);
    case block::EntityClass::kPolyline:
        return CollectGeometryFromPolyline(record, host::As<OxDbPolyline>(entity), symbol);
    case block::EntityClass::kSpline:
        return CollectGeometryFromSpline(record, host::As<OxDbSpline>(entity), symbol);
    case block::EntityClass::kArc:
        return CollectGeometryFromArc(record, host::As<OxDbArc>(entity), symbol);
    case block::EntityClass::kCircle:
        return CollectGeometryFromCircle(record, host::As<OxDbCircle>(entity), symbol);
    case block::EntityClass::kEllipse:
        return CollectGeometryFromEllipse(record, host::As<OxDbEllipse>(entity), symbol);
    case block::EntityClass::kHatch:
        return CollectGeometryFromHatch(record, host::As<OxDbHatch>(entity), symbol);
    case block::EntityClass::kMPolygon:
        return CollectGeometryFromMPolygon(record, host::As<OxDbMPolygon>(entity), symbol);
    case block::EntityClass::kText:
        return CollectGeometryFromText(record, host::As<OxDbText>(entity), symbol);
    case block::EntityClass::kMText:
        return CollectGeometryFromMText(record, host::As<OxDbMText>(entity), symbol);
    case block::EntityClass::kNotDrawn:
        return;
    }
}

void BlockConverter::AssignPointUsage(block::BlockSymbol& symbol) const {
    auto rotation = std::make_unique<TylModel::Parameter>();
    rotation->SetIdentifier(std::wstring(L"ROTATION"));
    rotation->SetDisplayName(std::wstring(L"&Rotation"));
    rotation->SetDescription(std::wstring(L"Rotation"));
    rotation->SetDefaultValue(Double2TylString(0.0));
    block::SetDataType(*rotation, block::kAngleType);
    symbol.Adopt(std::move(rotation));

    auto usage = std::make_unique<TylModel::PointUsage>();
    usage->SetAngle(std::wstring(L"%ROTATION%"));
    symbol.AdoptPointUsage(std::move(usage));
}
