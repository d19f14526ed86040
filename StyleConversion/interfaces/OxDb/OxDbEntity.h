// What all entities of a block have.
#pragma once

#include "OxDb/OxCmColor.h"
#include "OxDb/OxDbObject.h"
#include "OxDb/OxGePoint.h"

/// A thing that can be drawn. Coordinates are those of the block that owns it.
class OXDB_API OxDbEntity : public OxDbObject {
public:
    ~OxDbEntity() override;
    static const OxRxClass* desc();

    /// A copy of the name of the entity's layer, spelled as the entity has it. The caller releases it with
    /// oxutDelBuffer. Null when it cannot be given.
    virtual wchar_t* layer() const = 0;
    /// The entity's own colour, which may be by layer or by block.
    virtual OxCmColor color() const = 0;
    /// The entity's own line weight, which may be by layer, by block or the default.
    virtual OxDb::LineWeight lineWeight() const = 0;
    /// The entity's linetype record. By layer and by block are records too, without dashes.
    virtual OxDbObjectId linetypeId() const = 0;

    /// As the reads give it. eNotApplicable for an entity that a drawing holds only to be read.
    virtual Oxsys::ErrorStatus setColor(const OxCmColor& color) = 0;
    virtual Oxsys::ErrorStatus setLineWeight(OxDb::LineWeight lineWeight) = 0;
    /// The id of a linetype record.
    virtual Oxsys::ErrorStatus setLinetype(OxDbObjectId linetypeId) = 0;
};

/// An entity along which a parameter runs.
class OXDB_API OxDbCurve : public OxDbEntity {
public:
    ~OxDbCurve() override;
    static const OxRxClass* desc();

    /// The parameters of the curve's ends. On failure the output is as it was; so for all operations here.
    virtual Oxsys::ErrorStatus getStartParam(double& parameter) const = 0;
    virtual Oxsys::ErrorStatus getEndParam(double& parameter) const = 0;
    virtual Oxsys::ErrorStatus getPointAtParam(double parameter, OxGePoint3d& point) const = 0;
    virtual Oxsys::ErrorStatus getStartPoint(OxGePoint3d& point) const = 0;
    virtual Oxsys::ErrorStatus getEndPoint(OxGePoint3d& point) const = 0;
    /// Whether the curve comes back to its start by its nature: circles, whole ellipses, closed polylines.
    virtual bool isClosed() const = 0;
};
