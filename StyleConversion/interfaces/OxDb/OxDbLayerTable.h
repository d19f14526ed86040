// Layers.
#pragma once

#include "OxDb/OxCmColor.h"
#include "OxDb/OxDbSymbolTable.h"

/// A layer: what entities that are drawn by layer look like.
class OXDB_API OxDbLayerTableRecord : public OxDbSymbolTableRecord {
public:
    ~OxDbLayerTableRecord() override;
    static const OxRxClass* desc();

    /// What its entities by layer get.
    virtual OxCmColor color() const = 0;
    virtual OxDb::LineWeight lineWeight() const = 0;
};

/// The layers of a drawing.
class OXDB_API OxDbLayerTable : public OxDbSymbolTable {
public:
    ~OxDbLayerTable() override;
    static const OxRxClass* desc();

    /// Opens the layer of that name, which the caller closes. On failure `record` is null.
    virtual Oxsys::ErrorStatus getAt(const wchar_t* name, OxDbLayerTableRecord*& record, OxDb::OpenMode mode,
                                     bool openErased = false) const = 0;
};
