// Blocks: records, their entities and their draw order.
#pragma once

#include "OxDb/OxDbBlockTable.h"
#include "drawing/database/ObjectList.h"
#include "drawing/database/Records.h"

#include <memory>
#include <optional>
#include <vector>

namespace drawing {

/// What a block's record says of it.
struct BlockData {
    bool layout = false;                            // model space or a sheet
    bool anonymous = false;                         // named by a program
    OxDb::UnitsValue units = OxDb::kUnitsUndefined; // of its coordinates
    OxGePoint3d basePoint = {};                     // what inserts put to their own place; a conversion
                                                    // draws from 0, 0 unless it is asked to
};

/// A block's own draw order.
class OXDB_API SortentsTable : public Resident<OxDbSortentsTable> {
public:
    /// `order`: what is drawn first comes first.
    SortentsTable(Core& core, std::vector<OxDbObjectId> order);
    ~SortentsTable() override;
    Oxsys::ErrorStatus getFullDrawOrder(OxDbObjectIdArray& ids, std::uint8_t honourMask) const override;
    /// The ids without a failure.
    const std::vector<OxDbObjectId>& Order() const { return order_; }

private:
    std::vector<OxDbObjectId> order_;
};

/// A block: a name, what is said of it, and its entities in order of creation.
class OXDB_API BlockRecord : public NamedRecord<OxDbBlockTableRecord, Operation::kBlockGetName> {
public:
    /// Without a name and empty.
    explicit BlockRecord(Core& core);
    ~BlockRecord() override;

    /// Names the block; the table it is added to does so.
    void Set(const std::wstring& name, const BlockData& data);

    /// Adds an entity of the model's class T, or of one derived from it, at the end of the block:
    /// `block.Add<Line>(properties, start, end)`. It belongs to the block.
    template <class T, class... Args>
    T& Add(const EntityProperties& properties, Args&&... args) {
        return entities_.Make<T>(SharedCore(), properties, std::forward<Args>(args)...);
    }
    /// Gives the block a draw-order table, which may be empty or leave entities out.
    void SetDrawOrder(std::vector<OxDbObjectId> order);
    /// Null where the block has no draw-order table.
    const std::vector<OxDbObjectId>* DrawOrder() const {
        return sortentsTable_ ? &sortentsTable_->Order() : nullptr;
    }
    /// What was set with its name.
    const BlockData& Data() const { return data_; }
    /// Erased ones count, too.
    std::size_t EntityCount() const { return entities_.Stubs().size(); }
    /// The id of an entity by its place in the order of creation, from 0.
    OxDbObjectId EntityId(std::size_t index) const { return OxDbObjectId(entities_.Stubs().at(index)); }

    bool isLayout() const override { return data_.layout; }
    bool isAnonymous() const override { return data_.anonymous; }
    OxDb::UnitsValue blockInsertUnits() const override { return data_.units; }
    Oxsys::ErrorStatus getSortentsTable(OxDbSortentsTable*& table, OxDb::OpenMode mode,
                                        bool createIfNecessary) override;
    Oxsys::ErrorStatus newIterator(OxDbBlockTableRecordIterator*& iterator, bool atBeginning,
                                   bool skipErased) const override;
    Oxsys::ErrorStatus newBlockReferenceIdIterator(OxDbBlockReferenceIdIterator*& iterator) const override;

private:
    BlockData data_;
    NameIndex nameIndex_;
    EntityList entities_;
    std::unique_ptr<SortentsTable> sortentsTable_;
};

/// The block table, in order of addition.
class OXDB_API BlockTable : public Resident<OxDbBlockTable> {
public:
    /// Empty.
    explicit BlockTable(Core& core);
    ~BlockTable() override;

    /// Takes the record over as the last one, and returns it.
    BlockRecord& Adopt(std::unique_ptr<BlockRecord> record) { return records_.Adopt(std::move(record)); }
    /// All records, in order.
    const ObjectList& Records() const { return records_; }

    Oxsys::ErrorStatus getAt(const wchar_t* name, OxDbBlockTableRecord*& record, OxDb::OpenMode mode,
                             bool openErased) const override;
    Oxsys::ErrorStatus newIterator(OxDbBlockTableIterator*& iterator, bool atBeginning,
                                   bool skipErased) const override;

private:
    ObjectList records_;
};

} // namespace drawing
