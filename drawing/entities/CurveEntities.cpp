// Polylines and splines of a drawing.
#include "drawing/entities/CurveEntities.h"

#include "drawing/database/Lists.h"
#include "drawing/entities/PolylineData.h"
#include "drawing/entities/SplineCurves.h"

#include <algorithm>

namespace drawing {

Polyline::Polyline(Core& core, const EntityProperties& properties, const std::vector<BulgeVertex>& vertices,
                   bool closed, bool plinegen)
    : ResidentEntity(core, properties, static_cast<unsigned int>(vertices.size())) {
    for (const BulgeVertex& vertex : vertices) {
        OxDbPolyline::addVertexAt(OxDbPolyline::numVerts(), vertex.point, vertex.bulge);
    }
    OxDbPolyline::setClosed(closed);
    OxDbPolyline::setPlinegen(plinegen);
}

const std::vector<BulgeVertex>& Polyline::Vertices() const {
    return data().vertices;
}

void Polyline::SetWidths(std::vector<SegmentWidth> widths) {
    widths.resize(Vertices().size());
    const bool isWide = std::any_of(widths.begin(), widths.end(),
                                    [](const SegmentWidth& width) { return width != SegmentWidth(); });
    widths_ = isWide ? std::make_unique<const std::vector<SegmentWidth>>(std::move(widths)) : nullptr;
}

Oxsys::ErrorStatus Polyline::getLineSegAt(unsigned int index, OxGeLineSeg2d& segment) const {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    return Fails(Operation::kGetLineSegAt, status) ? status : OxDbPolyline::getLineSegAt(index, segment);
}

Oxsys::ErrorStatus Polyline::getArcSegAt(unsigned int index, OxGeCircArc3d& segment) const {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    return Fails(Operation::kGetArcSegAt, status) ? status : OxDbPolyline::getArcSegAt(index, segment);
}

Spline::Spline(Core& core, const EntityProperties& properties, SplineData data)
    : ResidentCurve(core, properties), data_(std::move(data)) {}

Spline::~Spline() = default;

Oxsys::ErrorStatus Spline::getFitData(OxGePoint3dArray& fitPoints, int& degree, double& fitTolerance,
                                      bool& tangentsExist, OxGeVector3d& startTangent,
                                      OxGeVector3d& endTangent) const {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    if (Fails(Operation::kGetFitData, status)) {
        return status;
    }
    const FitData* const fit = std::get_if<FitData>(&data_);
    if (fit == nullptr) {
        return Oxsys::eNotApplicable;
    }
    CopyTo(fitPoints, fit->points);
    degree = fit->degree;
    fitTolerance = fit->tolerance;
    tangentsExist = fit->tangentsExist;
    startTangent = fit->startTangent;
    endTangent = fit->endTangent;
    return Oxsys::eOk;
}

Oxsys::ErrorStatus Spline::getNurbsData(int& degree, bool& rational, bool& closed, bool& periodic,
                                        OxGePoint3dArray& controlPoints, OxGeDoubleArray& knots,
                                        OxGeDoubleArray& weights, double& controlPointTolerance,
                                        double& knotTolerance) const {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    if (Fails(Operation::kGetNurbsData, status)) {
        return status;
    }
    const NurbsData* const nurbs = std::get_if<NurbsData>(&data_);
    if (nurbs == nullptr) {
        return Oxsys::eNotApplicable;
    }
    degree = nurbs->degree;
    rational = !nurbs->weights.empty();
    closed = nurbs->closed;
    periodic = nurbs->periodic;
    CopyTo(controlPoints, nurbs->controlPoints);
    CopyTo(knots, nurbs->knots);
    CopyTo(weights, nurbs->weights);
    controlPointTolerance = OxGeContext::gTol.equalPoint();
    knotTolerance = kKnotTolerance;
    return Oxsys::eOk;
}

bool Spline::isClosed() const {
    return BuildCurve(data_)->isClosed();
}

double Spline::StartParameter() const {
    OxGeInterval interval;
    BuildCurve(data_)->getInterval(interval);
    return interval.lowerBound();
}

double Spline::EndParameter() const {
    OxGeInterval interval;
    BuildCurve(data_)->getInterval(interval);
    return interval.upperBound();
}

OxGePoint3d Spline::PointAt(double parameter) const {
    OxGePoint2dArray points;
    OxGeDoubleArray parameters;
    BuildCurve(data_)->getSamplePoints(parameter, parameter, OxGeContext::gTol.equalPoint(), points,
                                       parameters);
    return points.isEmpty() ? OxGePoint3d{} : OxGePoint3d{points[0].x, points[0].y, 0.0};
}

} // namespace drawing
