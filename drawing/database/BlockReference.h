// Inserts: entities that refer to a block.
#pragma once

#include "OxDb/OxDbBlockReference.h"
#include "drawing/database/Resident.h"

#include <string>

namespace drawing {

/// An insert of the block of a name. That block's references are the inserts of its name, in order of
/// creation.
class OXDB_API BlockReference : public ResidentEntity<OxDbBlockReference> {
public:
    /// The block need not be there, nor ever come.
    BlockReference(Core& core, const EntityProperties& properties, const std::wstring& blockName);
    OxDbObjectId blockTableRecord() const override;
    /// The name of the block, in the pool of names.
    NameIndex BlockName() const { return block_; }

private:
    NameIndex block_;
};

} // namespace drawing
