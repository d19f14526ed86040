// Construction, the names of blocks, the layer list, and the two ways to convert a block.
#include "StyleConversion/block/BlockConverter.h"

#include "StyleConversion/block/Faithful.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/block/UnitScale.h"
#include "StyleConversion/interfaces/HostNames.h"

#include <memory>

namespace {

bool IsConvertible(OxDbBlockTableRecord& record) {
    return host::IsValidBlock(record) && !record.isLayout() && !record.isAnonymous();
}

// The status may be success though nothing could be listed: the database then gave no table or no iterator.
Oxsys::ErrorStatus ListBlocks(OxDbDatabase* database, std::vector<std::wstring>& names, bool& listed) {
    names.clear();
    listed = false;
    if (database == nullptr) {
        return host::NoDatabase();
    }
    block::Opened<OxDbBlockTable> table;
    Oxsys::ErrorStatus status = database->getSymbolTable(table.Receive(), host::kForRead);
    if (!table.Accept(status)) {
        return status;
    }
    OxDbBlockTableIterator* created = nullptr;
    status = table->newIterator(created, true, true);
    const auto iterator = block::Accepted(status, created);
    if (iterator == nullptr) {
        return status;
    }
    for (iterator->start(true, true); !iterator->done(); iterator->step(true, true)) {
        block::Opened<OxDbBlockTableRecord> record;
        const wchar_t* name = nullptr;
        if (record.Accept(iterator->getRecord(record.Receive(), host::kForRead, false)) &&
            IsConvertible(*record) && record->getName(name) == Oxsys::eOk && name != nullptr) {
            names.emplace_back(name);
        }
    }
    listed = true;
    return Oxsys::eOk;
}

} // namespace

BlockConverter::BlockConverter(OxDbDatabase* database) : database_(database) {
    if (database_ != nullptr) {
        SetScale(database_->insunits());
    }
}

BlockConverter::BlockConverter(const BlockConverter& other) = default;
BlockConverter& BlockConverter::operator=(const BlockConverter& other) = default;
BlockConverter::~BlockConverter() = default;

std::int32_t BlockConverter::GetBlockNames(std::vector<std::wstring>& names) {
    bool listed = false;
    ListBlocks(database_, names, listed);
    return listed ? 0 : 1;
}

Oxsys::ErrorStatus BlockConverter::GetBlockNamesEx(std::vector<std::wstring>& names) {
    bool listed = false;
    return ListBlocks(database_, names, listed);
}

void BlockConverter::SetLayersToIgnore(const std::vector<std::wstring>& layers) {
    layersToIgnore_ = layers;
}

void BlockConverter::SetScale(OxDb::UnitsValue units) {
    if (block::IsFaithful()) {
        scale_ = block::ExactMillimetres(static_cast<int>(units));
    } else if (const double* const millimetres = block::MillimetresPer(units)) {
        scale_ = *millimetres;
    }
}

TylModel::SymbolDefinition* BlockConverter::Convert(const std::wstring& blockName) {
    if (database_ == nullptr) {
        return nullptr;
    }
    block::Opened<OxDbBlockTable> table;
    block::Opened<OxDbBlockTableRecord> record;
    if (!table.Accept(database_->getSymbolTable(table.Receive(), host::kForRead)) ||
        !record.Accept(table->getAt(blockName.c_str(), record.Receive(), host::kForRead, false))) {
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
        return units != database_->insunits() && block::HasUnit(units);
    };
    // Required: R5
    const auto restoreScale = [&](const void* /*converter*/) {
        if (hasOwnUnits()) {
            SetScale(database_->insunits());
        }
    };
    if (hasOwnUnits()) {
        SetScale(record->blockInsertUnits());
    } else if (block::IsFaithful()) {
        SetScale(database_->insunits());
    }
    const std::unique_ptr<BlockConverter, decltype(restoreScale)> restoring(this, restoreScale);
    auto symbol = std::make_unique<TylModel::SimpleSymbolDefinition>();
    return ProcessBlock(*record, *symbol) ? symbol.release() : nullptr;
}
