// Which blocks of a drawing can be converted.
#include "StyleConversion/block/BlockConverter.h"

#include "OxDb/OxDbBlockTable.h"
#include "OxDb/OxDbDatabase.h"
#include "StyleConversion/block/Opened.h"

namespace {

// Records that are erased or have been taken out of the drawing are no blocks to convert.
bool IsConvertible(const OxDbBlockTableRecord& record) {
    return record.isResident() && !record.isLayout() && !record.isAnonymous();
}

} // namespace

std::int32_t BlockConverter::GetBlockNames(std::vector<std::wstring>& names) {
    bool listed = false;
    ListBlocks(names, listed);
    return listed ? 0 : 1;
}

Oxsys::ErrorStatus BlockConverter::GetBlockNamesEx(std::vector<std::wstring>& names) {
    bool listed = false;
    return ListBlocks(names, listed);
}

// The status may be success though nothing could be listed: the database then gave no table or no iterator.
Oxsys::ErrorStatus BlockConverter::ListBlocks(std::vector<std::wstring>& names, bool& listed) const {
    names.clear();
    listed = false;
    if (database_ == nullptr) {
        return Oxsys::eNoDatabase;
    }
    block::Opened<OxDbBlockTable> table;
    Oxsys::ErrorStatus status = database_->getSymbolTable(table.Receive(), OxDb::kForRead);
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
        if (record.Accept(iterator->getRecord(record.Receive(), OxDb::kForRead, false)) &&
            IsConvertible(*record) && record->getName(name) == Oxsys::eOk && name != nullptr) {
            names.emplace_back(name);
        }
    }
    listed = true;
    return Oxsys::eOk;
}
