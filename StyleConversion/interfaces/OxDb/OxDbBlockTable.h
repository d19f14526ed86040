// Blocks: the table, its records and the ways through them.
#pragma once

#include "OxDb/OxArray.h"
#include "OxDb/OxDbBlockReference.h"
#include "OxDb/OxDbSymbolTable.h"

#include <cstdint>

/// Ids in an order.
using OxDbObjectIdArray = OxArray<OxDbObjectId>;

/// The order in which a block's entities are drawn.
class OXDB_API OxDbSortentsTable : public OxDbObject {
public:
    ~OxDbSortentsTable() override;
    static const OxRxClass* desc();

    /// Replaces what `ids` holds by the block's entities, the one that is drawn first in front.
    /// `honourMask`: 0 for the order as it is, whatever the drawing says it is to be used for.
    virtual Oxsys::ErrorStatus getFullDrawOrder(OxDbObjectIdArray& ids,
                                                std::uint8_t honourMask = 0) const = 0;
};

/// Goes through a block's entities in the order of their creation. Deleted by whoever asked for it.
class OXDB_API OxDbBlockTableRecordIterator {
public:
    virtual ~OxDbBlockTableRecordIterator();
    OxDbBlockTableRecordIterator(const OxDbBlockTableRecordIterator&) = delete;
    OxDbBlockTableRecordIterator& operator=(const OxDbBlockTableRecordIterator&) = delete;

    /// As with the records of a table: goes to the first (or last) entity, tells whether none is left, goes
    /// one on.
    virtual void start(bool atBeginning = true, bool skipErased = true) = 0;
    virtual bool done() const = 0;
    virtual void step(bool forward = true, bool skipErased = true) = 0;
    /// Opens the entity that the iterator stands at, which the caller closes. On failure `entity` is null.
    virtual Oxsys::ErrorStatus getEntity(OxDbEntity*& entity, OxDb::OpenMode mode,
                                         bool openErased = false) const = 0;

protected:
    OxDbBlockTableRecordIterator() = default;
};

/// Goes through the references (inserts) of one block, wherever in the drawing they are. Deleted by whoever
/// asked for it.
class OXDB_API OxDbBlockReferenceIdIterator {
public:
    virtual ~OxDbBlockReferenceIdIterator();
    OxDbBlockReferenceIdIterator(const OxDbBlockReferenceIdIterator&) = delete;
    OxDbBlockReferenceIdIterator& operator=(const OxDbBlockReferenceIdIterator&) = delete;

    /// Goes to the first reference.
    virtual void start() = 0;
    /// True behind the last reference.
    virtual bool done() const = 0;
    /// Goes one reference on. Does nothing when done.
    virtual void step() = 0;
    /// Opens the reference that the iterator stands at, which the caller closes. On failure, as when there is
    /// none, `reference` is null.
    virtual Oxsys::ErrorStatus getBlockReference(OxDbBlockReference*& reference, OxDb::OpenMode mode,
                                                 bool openErased = false) const = 0;

protected:
    OxDbBlockReferenceIdIterator() = default;
};

/// One block: a named list of entities.
class OXDB_API OxDbBlockTableRecord : public OxDbSymbolTableRecord {
public:
    ~OxDbBlockTableRecord() override;
    static const OxRxClass* desc();

    /// Whether the block holds a layout (the model space or a sheet) rather than something to insert.
    virtual bool isLayout() const = 0;
    /// Whether the block was named by the system.
    virtual bool isAnonymous() const = 0;
    /// The unit that the block is drawn in.
    virtual OxDb::UnitsValue blockInsertUnits() const = 0;

    /// Opens the block's draw-order table, which the caller closes. eKeyNotFound when it has none; the table
    /// is then null. `createIfNecessary` must be false for a drawing that is open for reading.
    virtual Oxsys::ErrorStatus getSortentsTable(OxDbSortentsTable*& table, OxDb::OpenMode mode,
                                                bool createIfNecessary = false) = 0;
    /// A new iterator at the first (or last) entity. On failure `iterator` is null.
    virtual Oxsys::ErrorStatus newIterator(OxDbBlockTableRecordIterator*& iterator, bool atBeginning = true,
                                           bool skipErased = true) const = 0;
    /// A new iterator at the first reference of this block. On failure `iterator` is null.
    virtual Oxsys::ErrorStatus newBlockReferenceIdIterator(OxDbBlockReferenceIdIterator*& iterator) const = 0;
};

/// Goes through the blocks of a drawing in table order.
class OXDB_API OxDbBlockTableIterator : public OxDbSymbolTableIterator {
public:
    ~OxDbBlockTableIterator() override;
    /// Opens the record that the iterator stands at, which the caller closes. On failure `record` is null.
    virtual Oxsys::ErrorStatus getRecord(OxDbBlockTableRecord*& record, OxDb::OpenMode mode,
                                         bool openErased = false) const = 0;
};

/// The blocks of a drawing.
class OXDB_API OxDbBlockTable : public OxDbSymbolTable {
public:
    ~OxDbBlockTable() override;
    static const OxRxClass* desc();

    /// Opens the block of that name, which the caller closes. On failure `record` is null.
    virtual Oxsys::ErrorStatus getAt(const wchar_t* name, OxDbBlockTableRecord*& record, OxDb::OpenMode mode,
                                     bool openErased = false) const = 0;
    /// A new iterator at the first (or last) block. On failure `iterator` is null.
    virtual Oxsys::ErrorStatus newIterator(OxDbBlockTableIterator*& iterator, bool atBeginning = true,
                                           bool skipErased = true) const = 0;
};
