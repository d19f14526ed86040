// Inserts: entities that refer to a block.
#pragma once

#include "OxDb/OxDbBlockReference.h"
#include "drawing/database/ObjectList.h"
#include "drawing/database/Resident.h"

#include <string>

namespace drawing {

/// Where and how an insert puts its block. A conversion of blocks does not draw inserts unless it is asked
/// to.
struct InsertPlace {
    OxGePoint3d position = {};
    double scaleX = 1.0;
    double scaleY = 1.0;
    double rotation = 0.0;    ///< radians
    bool isMirrored = false;  ///< all of it is seen from below, x to the left
    std::int32_t columns = 1; ///< along the insert's own x axis, and rows along y
    std::int32_t rows = 1;
    double columnSpacing = 0.0; ///< drawing units
    double rowSpacing = 0.0;
};

/// An insert of the block of a name. That block's references are the inserts of its name, in order of
/// creation.
class OXDB_API BlockReference : public ResidentEntity<OxDbBlockReference> {
public:
    /// The block need not be there, nor ever come.
    BlockReference(Core& core, const EntityProperties& properties, const std::wstring& blockName,
                   const InsertPlace& place = {});
    ~BlockReference() override;
    OxDbObjectId blockTableRecord() const override;
    /// The name of the block, in the pool of names.
    NameIndex BlockName() const { return block_; }
    /// The same as a text.
    const std::wstring& BlockText() const { return SharedCore().names.Text(block_); }
    /// Where the block is put.
    const InsertPlace& Place() const { return place_; }

    /// Adds an attribute: a text of the model's class T, in the coordinates of the block that the insert is
    /// in.
    template <class T, class... Args>
    T& AddAttribute(const EntityProperties& properties, Args&&... args) {
        return attributes_.Adopt(std::make_unique<T>(SharedCore(), properties, std::forward<Args>(args)...));
    }
    /// The attributes in order.
    const std::vector<OxDbStub*>& Attributes() const { return attributes_.Stubs(); }

private:
    NameIndex block_;
    InsertPlace place_;
    ObjectList attributes_;
};

} // namespace drawing
