// An open drawing.
#pragma once

#include "OxDb/OxDbBlockTable.h"
#include "OxDb/OxDbLayerTable.h"
#include "OxDb/OxDbTextStyleTable.h"

/// Holds the tables of one drawing and all their objects.
class OXDB_API OxDbDatabase {
public:
    virtual ~OxDbDatabase();
    OxDbDatabase(const OxDbDatabase&) = delete;
    OxDbDatabase& operator=(const OxDbDatabase&) = delete;

    /// Opens the table, which the caller closes. On failure `table` is null.
    virtual Oxsys::ErrorStatus getSymbolTable(OxDbBlockTable*& table, OxDb::OpenMode mode) = 0;
    virtual Oxsys::ErrorStatus getSymbolTable(OxDbLayerTable*& table, OxDb::OpenMode mode) = 0;
    virtual Oxsys::ErrorStatus getSymbolTable(OxDbTextStyleTable*& table, OxDb::OpenMode mode) = 0;

    /// The unit of the drawing's lengths.
    virtual OxDb::UnitsValue insunits() const = 0;

protected:
    OxDbDatabase() = default;
};

/// Opens the entity of that id, which the caller closes. Fails, and sets `entity` to null, for a null id, an
/// object that is no entity, or one that is erased when `openErased` is false.
OXDB_API Oxsys::ErrorStatus oxdbOpenOxDbEntity(OxDbEntity*& entity, OxDbObjectId id, OxDb::OpenMode mode,
                                               bool openErased = false);

/// Opens the object of that id, which the caller closes. Fails, and sets `object` to null, for a null id, an
/// object that is not of `requiredClass` or derived from it, or one that is erased when `openErased` is
/// false.
OXDB_API Oxsys::ErrorStatus oxdbOpenOxDbObject(OxDbObject*& object, OxDbObjectId id, OxDb::OpenMode mode,
                                               const OxRxClass* requiredClass, bool openErased = false);

/// As above, with the class of the pointer as the required class.
template <class T>
Oxsys::ErrorStatus oxdbOpenOxDbObject(T*& object, OxDbObjectId id, OxDb::OpenMode mode,
                                      bool openErased = false) {
    OxDbObject* opened = nullptr;
    const Oxsys::ErrorStatus status = oxdbOpenOxDbObject(opened, id, mode, T::desc(), openErased);
    object = static_cast<T*>(opened);
    return status;
}

/// Releases a text that the library allocated, and sets the pointer to null. Null is allowed.
OXDB_API void oxutDelBuffer(wchar_t*& buffer);
