// Spline entities.
#pragma once

#include "OxDb/OxDbEntity.h"

/// A spline given either by the points it passes through or by control points.
class OXDB_API OxDbSpline : public OxDbCurve {
public:
    ~OxDbSpline() override;
    static const OxRxClass* desc();

    /// Whether the spline is given by the points that it passes through.
    virtual bool hasFitData() const = 0;
    /// The points that the spline passes through. Tangents mean something only when `tangentsExist`.
    /// eNotApplicable when the spline has no fit data.
    virtual Oxsys::ErrorStatus getFitData(OxGePoint3dArray& fitPoints, int& degree, double& fitTolerance,
                                          bool& tangentsExist, OxGeVector3d& startTangent,
                                          OxGeVector3d& endTangent) const = 0;
    /// The spline as control points. `weights` is empty when the spline is not rational. eNotApplicable when
    /// the spline is given by fit points.
    virtual Oxsys::ErrorStatus getNurbsData(int& degree, bool& rational, bool& closed, bool& periodic,
                                            OxGePoint3dArray& controlPoints, OxGeDoubleArray& knots,
                                            OxGeDoubleArray& weights, double& controlPointTolerance,
                                            double& knotTolerance) const = 0;
};
