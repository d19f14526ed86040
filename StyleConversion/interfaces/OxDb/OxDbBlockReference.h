// Inserts of blocks.
#pragma once

#include "OxDb/OxDbEntity.h"

/// One insert of a block into a drawing or another block.
class OXDB_API OxDbBlockReference : public OxDbEntity {
public:
    ~OxDbBlockReference() override;
    static const OxRxClass* desc();

    /// The record of the block that is inserted; cannot be opened when there is no such block.
    virtual OxDbObjectId blockTableRecord() const = 0;
};
