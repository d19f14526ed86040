// The layer that an entity is on.
#include "StyleConversion/block/BlockConverter.h"

#include "OxDb/OxDbDatabase.h"
#include "OxDb/OxDbEntity.h"
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
