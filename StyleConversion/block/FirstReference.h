// The first insert of a block: what "by block" refers to.
#pragma once

#include "OxDb/OxDbBlockTable.h"
#include "StyleConversion/block/Opened.h"

namespace block {

/// Opens the first reference of the block for reading; false when it has none or it cannot be opened.
inline bool OpenFirstReference(const OxDbBlockTableRecord& record, Opened<OxDbBlockReference>& reference) {
    OxDbBlockReferenceIdIterator* created = nullptr;
    const Oxsys::ErrorStatus status = record.newBlockReferenceIdIterator(created);
    const auto iterator = Accepted(status, created);
    if (iterator == nullptr) {
        return false;
    }
    iterator->start();
    return reference.Accept(iterator->getBlockReference(reference.Receive(), OxDb::kForRead, false));
}

} // namespace block
