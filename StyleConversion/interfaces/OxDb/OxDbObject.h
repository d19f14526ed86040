// Root of the objects that a drawing database holds.
#pragma once

#include "OxDb/ErrorStatus.h"
#include "OxDb/OxDbObjectId.h"
#include "OxDb/OxDbTypes.h"
#include "OxDb/OxRxClass.h"

/// An object of a database is reached by opening it, belongs to the database, and must be closed once for
/// each time that it was opened; the pointer is not to be used after that. An object that was made with `new`
/// and was never added to a database belongs to whoever made it, and is deleted instead.
class OXDB_API OxDbObject : public OxRxObject {
public:
    ~OxDbObject() override;
    static const OxRxClass* desc();

    /// Ends one opening of the object. eNotOpen when the object is not open.
    virtual Oxsys::ErrorStatus close() = 0;
    /// The object's id; null for an object that is in no database.
    virtual OxDbObjectId objectId() const = 0;
    /// True when the object is in a database now: resident there, and not erased.
    virtual bool isResident() const = 0;
};
