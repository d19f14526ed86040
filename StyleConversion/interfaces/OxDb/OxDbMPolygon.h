// Multi-polygons: filled areas with an outline, of several loops.
#pragma once

#include "OxDb/OxDbEntity.h"

/// An area that its loops bound, outline and inside.
class OXDB_API OxDbMPolygon : public OxDbEntity {
public:
    ~OxDbMPolygon() override;
    static const OxRxClass* desc();

    /// Loop indices are below this number; eInvalidIndex for others.
    virtual int numMPolygonLoops() const = 0;
    /// The vertices of a loop, and a bulge for each, or no bulges at all when all segments are straight.
    virtual Oxsys::ErrorStatus getMPolygonLoopAt(int index, OxGePoint2dArray& vertices,
                                                 OxGeDoubleArray& bulges) const = 0;
    /// The colour of the inside; color() is the outline's.
    virtual OxCmColor fillColor() const = 0;
};
