// Inserts: entities that refer to a block.
#include "drawing/database/BlockReference.h"

namespace drawing {

BlockReference::BlockReference(Core& core, const EntityProperties& properties, const std::wstring& blockName,
                               const InsertPlace& place)
    : ResidentEntity(core, properties), block_(core.names.Intern(blockName)), place_(place) {
    core.names.Things(block_).references.push_back(&Stub());
}

BlockReference::~BlockReference() = default;

OxDbObjectId BlockReference::blockTableRecord() const {
    return IdOrMissing(SharedCore(), SharedCore().names.Things(block_).block, block_);
}

} // namespace drawing
