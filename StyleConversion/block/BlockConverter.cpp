// Construction, the layer list, and the two ways to convert a block.
#include "StyleConversion/block/BlockConverter.h"

#include "OxDb/OxDbBlockTable.h"
#include "OxDb/OxDbDatabase.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/block/UnitScale.h"
#include "TylModel/TylModel.h"

#include <memory>

BlockConverter::BlockConverter(OxDbDatabase* database) : database_(database) {
    if (database_ != nullptr) {
        SetScale(database_->insunits());
    }
}

BlockConverter::BlockConverter(const BlockConverter& other) = default;
BlockConverter& BlockConverter::operator=(const BlockConverter& other) = default;
BlockConverter::~BlockConverter() = default;

void BlockConverter::SetLayersToIgnore(const std::vector<std::wstring>& layers) {
    layersToIgnore_ = layers;
}

void BlockConverter::SetScale(OxDb::UnitsValue units) {
    if (const double* const millimetres = block::MillimetresPer(units)) {
        scale_ = *millimetres;
    }
}

TylModel::SymbolDefinition* BlockConverter::Convert(const std::wstring& blockName) {
    if (database_ == nullptr) {
        return nullptr;
    }
    block::Opened<OxDbBlockTable> table;
    block::Opened<OxDbBlockTableRecord> record;
    if (!table.Accept(database_->getSymbolTable(table.Receive(), OxDb::kForRead)) ||
        !record.Accept(table->getAt(blockName.c_str(), record.Receive(), OxDb::kForRead, false))) {
        return nullptr;
    }
    return Convert(record.Get());
}

TylModel::SymbolDefinition* BlockConverter::Convert(OxDbBlockTableRecord* record) {
    if (database_ == nullptr || record == nullptr) {
        return nullptr;
    }
    const auto hasOwnUnits = [&] {
        const OxDb::UnitsValue units = record->blockInsertUnits();
        return units != database_->insunits() && units != OxDb::kUnitsUndefined;
    };
    // A drawing unit that has no factor leaves the block's scale in force: the output is wanted so.
    const auto restoreScale = [&](const void* /*converter*/) {
        if (hasOwnUnits()) {
            SetScale(database_->insunits());
        }
    };
    if (hasOwnUnits()) {
        SetScale(record->blockInsertUnits());
    }
    const std::unique_ptr<BlockConverter, decltype(restoreScale)> restoring(this, restoreScale);
    auto symbol = std::make_unique<TylModel::SimpleSymbolDefinition>();
    return ProcessBlock(*record, *symbol) ? symbol.release() : nullptr;
}
