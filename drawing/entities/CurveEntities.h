// Polylines and splines of a drawing.
#pragma once

#include "OxDb/OxDbPolyline.h"
#include "OxDb/OxDbSpline.h"
#include "drawing/database/Resident.h"
#include "drawing/entities/SplineCurves.h"
#include "drawing/entities/WideSegments.h"
#include "drawing/geometry/BulgeVertex.h"

#include <memory>
#include <vector>

namespace drawing {

using geometry::BulgeVertex;

/// A polyline of the plane.
class OXDB_API Polyline : public ResidentEntity<OxDbPolyline> {
public:
    /// `plinegen`: its linetype runs on over the vertices. Nothing is checked.
    Polyline(Core& core, const EntityProperties& properties, const std::vector<BulgeVertex>& vertices,
             bool closed, bool plinegen);

    Oxsys::ErrorStatus getLineSegAt(unsigned int index, OxGeLineSeg2d& segment) const override;
    Oxsys::ErrorStatus getArcSegAt(unsigned int index, OxGeCircArc3d& segment) const override;

    /// All vertices in order.
    const std::vector<BulgeVertex>& Vertices() const;

    /// How wide its segments are, one for each vertex; null where all are lines without a width, as
    /// conversions draw them unless they are asked for what the drawing shows.
    const std::vector<SegmentWidth>* Widths() const { return widths_.get(); }
    /// Before the drawing is converted. Vertices without one have no width.
    void SetWidths(std::vector<SegmentWidth> widths);

private:
    std::unique_ptr<const std::vector<SegmentWidth>> widths_; // few have any
};

/// A spline, by what it was drawn with.
class OXDB_API Spline : public ResidentCurve<OxDbSpline> {
public:
    /// Data that makes no curve is taken, too.
    Spline(Core& core, const EntityProperties& properties, SplineData data);
    ~Spline() override;

    bool hasFitData() const override { return std::holds_alternative<FitData>(data_); }
    Oxsys::ErrorStatus getFitData(OxGePoint3dArray& fitPoints, int& degree, double& fitTolerance,
                                  bool& tangentsExist, OxGeVector3d& startTangent,
                                  OxGeVector3d& endTangent) const override;
    Oxsys::ErrorStatus getNurbsData(int& degree, bool& rational, bool& closed, bool& periodic,
                                    OxGePoint3dArray& controlPoints, OxGeDoubleArray& knots,
                                    OxGeDoubleArray& weights, double& controlPointTolerance,
                                    double& knotTolerance) const override;
    bool isClosed() const override;

    /// What it was made with.
    const SplineData& Data() const { return data_; }

protected:
    // A spline whose data makes no curve has parameters and points 0.
    double StartParameter() const override;
    double EndParameter() const override;
    OxGePoint3d PointAt(double parameter) const override;

private:
    SplineData data_;
};

} // namespace drawing
