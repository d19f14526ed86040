// The layer that an entity is on.
#include "StyleConversion/block/BlockConverter.h"

#include "OxDb/OxDbDatabase.h"
#include "OxDb/OxDbEntity.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/Opened.h"

void BlockConverter::FindLayer(const wchar_t* name, OxDbLayerTableRecord*& layer) const {
    layer = nullptr;
    block::Opened<OxDbLayerTable> table;
    if (name != nullptr && table.Accept(database_->getSymbolTable(table.Receive(), OxDb::kForRead)) &&
        table->getAt(name, layer, OxDb::kForRead, false) != Oxsys::eOk) {
        layer = nullptr;
    }
}

void BlockConverter::FindEntityLayer(const OxDbEntity& entity, OxDbLayerTableRecord*& layer) const {
    const block::LayerName name(entity);
    FindLayer(name.Get(), layer);
}

block::NamedLayer* BlockConverter::ReadEntityLayer(const OxDbEntity& entity,
                                                   block::BlockSymbol& symbol) const {
    const block::LayerName name(entity);
    if (name.Get() == nullptr) {
        return nullptr;
    }
    block::NamedLayer& layer = symbol.LayerNamed(name.Get());
    if (!layer.isKnown) {
        block::Opened<OxDbLayerTableRecord> record;
        FindLayer(name.Get(), record.Receive());
        if (record.Get() == nullptr) {
            return nullptr;
        }
        layer.color = record->color();
        layer.lineWeight = record->lineWeight();
        const wchar_t* spelling = nullptr;
        layer.isKnown = record->getName(spelling) == Oxsys::eOk && spelling != nullptr;
        if (layer.isKnown) {
            layer.record = spelling;
        }
    }
    return &layer;
}
