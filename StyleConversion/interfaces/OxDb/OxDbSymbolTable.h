// What the named tables of a drawing have in common.
#pragma once

#include "OxDb/OxDbObject.h"

/// A table of named records. Names are looked up without regard to case.
class OXDB_API OxDbSymbolTable : public OxDbObject {
public:
    ~OxDbSymbolTable() override;
    static const OxRxClass* desc();
};

/// A record of a table.
class OXDB_API OxDbSymbolTableRecord : public OxDbObject {
public:
    ~OxDbSymbolTableRecord() override;
    static const OxRxClass* desc();

    /// The record's name, spelled as it was given. The string stays the record's own and may be used while
    /// the record is open.
    virtual Oxsys::ErrorStatus getName(const wchar_t*& name) const = 0;
};

/// Goes through the records of a table in table order. Made by the table, deleted by whoever asked for it.
class OXDB_API OxDbSymbolTableIterator {
public:
    virtual ~OxDbSymbolTableIterator();
    OxDbSymbolTableIterator(const OxDbSymbolTableIterator&) = delete;
    OxDbSymbolTableIterator& operator=(const OxDbSymbolTableIterator&) = delete;

    /// Goes to the first record, or to the last.
    virtual void start(bool atBeginning = true, bool skipErased = true) = 0;
    /// True when the iterator stands behind the last record (or before the first, going backward).
    virtual bool done() const = 0;
    /// Goes one record on. Does nothing when done.
    virtual void step(bool forward = true, bool skipErased = true) = 0;

protected:
    OxDbSymbolTableIterator() = default;
};
