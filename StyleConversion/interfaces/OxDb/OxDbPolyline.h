// Lightweight polylines: straight and circular segments over a list of vertices.
#pragma once

#include "OxDb/OxDbEntity.h"
#include "OxDb/OxGeCircArc3d.h"
#include "OxDb/OxGeCurve2d.h"

/// A polyline of a drawing, or one that was made with `new` and belongs to its maker: open, without vertices,
/// without linetype generation, on layer "0", colour and line weight by layer and no linetype.
///
/// Segment i runs from vertex i to vertex i + 1; the last segment of a closed polyline runs to vertex 0.
class OXDB_API OxDbPolyline : public OxDbCurve {
public:
    /// Makes room for `vertexCount` vertices; there are none yet.
    explicit OxDbPolyline(unsigned int vertexCount = 0);
    ~OxDbPolyline() override;
    static const OxRxClass* desc();
    const OxRxClass* isA() const override;

    /// What a segment is.
    enum SegType {
        kLine = 0, ///< Straight.
        kArc = 1,  ///< An arc of a circle.
        /// Both ends are exactly equal.
        kCoincident = 2,
        /// The polyline has just one vertex.
        kPoint = 3,
        /// There is no such segment.
        kEmpty = 4,
    };

    /// How many vertices there are.
    virtual unsigned int numVerts() const;
    /// Whether linetypes run on over the vertices (otherwise each segment starts the pattern anew).
    virtual bool hasPlinegen() const;
    /// What segment `index` is; kEmpty when there is none.
    virtual SegType segType(unsigned int index) const;
    /// The segment as a straight one. eNotApplicable when it is of another kind, eInvalidIndex when there is
    /// none; the output is then as it was.
    virtual Oxsys::ErrorStatus getLineSegAt(unsigned int index, OxGeLineSeg2d& segment) const;
    /// The segment as an arc of less than 2π, from vertex to vertex; failures as for the straight one.
    virtual Oxsys::ErrorStatus getArcSegAt(unsigned int index, OxGeCircArc3d& segment) const;

    /// Inserts a vertex before `index` (numVerts() appends). `bulge` is the tangent of a quarter of the
    /// included angle of the segment that starts here, positive for an arc to the left of its chord's right
    /// hand, that is counter-clockwise; widths are -1 for "not given". eInvalidIndex above numVerts().
    virtual Oxsys::ErrorStatus addVertexAt(unsigned int index, const OxGePoint2d& point, double bulge = 0.0,
                                           double startWidth = -1.0, double endWidth = -1.0);
    /// Each sets what the read of its name gives.
    virtual void setPlinegen(bool value);
    virtual void setClosed(bool value);

    Oxsys::ErrorStatus close() override;
    OxDbObjectId objectId() const override;
    bool isResident() const override;
    wchar_t* layer() const override;
    OxCmColor color() const override;
    OxDb::LineWeight lineWeight() const override;
    OxDbObjectId linetypeId() const override;
    /// Each sets what the read of its name gives, and succeeds.
    Oxsys::ErrorStatus setColor(const OxCmColor& color) override;
    Oxsys::ErrorStatus setLineWeight(OxDb::LineWeight lineWeight) override;
    Oxsys::ErrorStatus setLinetype(OxDbObjectId linetypeId) override;

    /// The parameter is the segment's index plus the part of the segment that has been travelled.
    Oxsys::ErrorStatus getStartParam(double& parameter) const override;
    Oxsys::ErrorStatus getEndParam(double& parameter) const override;
    Oxsys::ErrorStatus getPointAtParam(double parameter, OxGePoint3d& point) const override;
    Oxsys::ErrorStatus getStartPoint(OxGePoint3d& point) const override;
    Oxsys::ErrorStatus getEndPoint(OxGePoint3d& point) const override;
    bool isClosed() const override;

    struct Data;
    /// For the database itself, which alone knows what it is.
    const Data& data() const { return *data_; }

private:
    Data* data_;
};
