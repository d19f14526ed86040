// The layer that an entity is on.
#include "StyleConversion/block/BlockConverter.h"

#include "OxDb/OxDbDatabase.h"
#include "OxDb/OxDbEntity.h"
#include "StyleConversion/block/Opened.h"

void BlockConverter::FindEntityLayer(const OxDbEntity& entity, OxDbLayerTableRecord*& layer) const {
    layer = nullptr;
    block::Opened<OxDbLayerTable> table;
    if (!table.Accept(database_->getSymbolTable(table.Receive(), OxDb::kForRead))) {
        return;
    }
    const block::LayerName name(entity);
    if (name.Get() != nullptr && table->getAt(name.Get(), layer, OxDb::kForRead, false) != Oxsys::eOk) {
        layer = nullptr;
    }
}
