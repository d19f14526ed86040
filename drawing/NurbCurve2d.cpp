// Rational B-spline curves of the plane, over the geometry.
#include "OxDb/OxGeNurbCurve2d.h"

#include "drawing/geometry/BoundingBox.h"
#include "drawing/geometry/Interpolation.h"
#include "drawing/geometry/NurbsCurve.h"
#include "drawing/geometry/Sampling.h"

#include <optional>

struct OxGeNurbCurveData {
    geometry::NurbsCurve curve;
};

OxGeNurbCurve2d::OxGeNurbCurve2d(int, const OxGeKnotVector&, const OxGePoint2dArray&, bool) {}
OxGeNurbCurve2d::OxGeNurbCurve2d(int, const OxGeKnotVector&, const OxGePoint2dArray&, const OxGeDoubleArray&,
                                 bool) {}
OxGeNurbCurve2d::OxGeNurbCurve2d(const OxGePoint2dArray&, const OxGeVector2d&, const OxGeVector2d&, bool,
                                 bool, const OxGeTol&) {}
OxGeNurbCurve2d::OxGeNurbCurve2d(const OxGePoint2dArray&, const OxGeTol&) {}

OxGeNurbCurve2d::~OxGeNurbCurve2d() {
    delete data_;
}

OxGeNurbCurve2d& OxGeNurbCurve2d::makeClosed() {
    return *this;
}

bool OxGeNurbCurve2d::isClosed(const OxGeTol&) const {
    return false;
}

OxGeBoundBlock2d OxGeNurbCurve2d::boundBlock() const {
    return {};
}

void OxGeNurbCurve2d::getInterval(OxGeInterval& interval) const {
    interval.set(0.0, 0.0);
}

void OxGeNurbCurve2d::getSamplePoints(double, double, double, OxGePoint2dArray& points,
                                      OxGeDoubleArray& parameters) const {
    points.removeAll();
    parameters.removeAll();
}
