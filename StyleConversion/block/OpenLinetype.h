// The linetype record of an entity.
#pragma once

#include "OxDb/OxDbDatabase.h"
#include "OxDb/OxDbEntity.h"
#include "OxDb/OxDbLinetypeTableRecord.h"
#include "StyleConversion/block/Opened.h"

namespace block {

/// The entity's linetype, opened for reading; none when it cannot be opened.
class Linetype {
public:
    explicit Linetype(const OxDbEntity& entity) {
        record_.Accept(oxdbOpenOxDbObject(record_.Receive(), entity.linetypeId(), OxDb::kForRead));
    }

    /// Null when there is none.
    const OxDbLinetypeTableRecord* Get() const { return record_.Get(); }
    void Close() { record_.Close(); }

private:
    Opened<OxDbLinetypeTableRecord> record_;
};

} // namespace block
