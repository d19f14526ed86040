// Rational B-spline curves of the plane.
#pragma once

#include "OxDb/OxGeCurve2d.h"

struct OxGeNurbCurveData;

/// The knots of a B-spline, not falling.
class OXDB_API OxGeKnotVector {
public:
    OxGeKnotVector() = default;
    /// `tolerance`: knots nearer to each other than this count as one knot repeated.
    explicit OxGeKnotVector(const OxGeDoubleArray& knots, double tolerance = 1e-9)
        : knots_(knots), tolerance_(tolerance) {}
    OxGeKnotVector(int count, const double* knots, double tolerance = 1e-9)
        : knots_(count), tolerance_(tolerance) {
        for (int index = 0; index < count; ++index) {
            knots_.append(knots[index]);
        }
    }

    /// How many knots there are, the knot of that index, which is not checked, and the tolerance.
    int length() const { return knots_.length(); }
    double operator[](int index) const { return knots_[index]; }
    double tolerance() const { return tolerance_; }

private:
    OxGeDoubleArray knots_;
    double tolerance_ = 1e-9;
};

/// A B-spline curve of any degree, rational or not, closed or open, periodic or not. When the data given to a
/// constructor makes no curve (too few points, counts that do not fit, falling knots, weights that are not
/// above 0, coordinates that are not finite), isDefined() is false, the box and the interval are empty at 0
/// and there are no samples.
class OXDB_API OxGeNurbCurve2d : public OxGeCurve2d {
public:
    /// From control points. Not periodic: knots count = control points + degree + 1. Periodic: the knots may
    /// also be fewer (one more than the control points), the first points then count again behind the last.
    OxGeNurbCurve2d(int degree, const OxGeKnotVector& knots, const OxGePoint2dArray& controlPoints,
                    bool isPeriodic = false);
    /// Rational: one weight per control point.
    OxGeNurbCurve2d(int degree, const OxGeKnotVector& knots, const OxGePoint2dArray& controlPoints,
                    const OxGeDoubleArray& weights, bool isPeriodic = false);
    /// Through the fit points in order: a cubic with continuous second derivative whose direction at each end
    /// is the tangent given there, where that tangent is marked as defined. Fit points equal within the
    /// tolerance count once.
    OxGeNurbCurve2d(const OxGePoint2dArray& fitPoints, const OxGeVector2d& startTangent,
                    const OxGeVector2d& endTangent, bool startTangentDefined = true,
                    bool endTangentDefined = true, const OxGeTol& fitTolerance = OxGeContext::gTol);
    /// Through the fit points in order, with free ends.
    explicit OxGeNurbCurve2d(const OxGePoint2dArray& fitPoints,
                             const OxGeTol& fitTolerance = OxGeContext::gTol);
    ~OxGeNurbCurve2d() override;
    OxGeNurbCurve2d(const OxGeNurbCurve2d&) = delete;
    OxGeNurbCurve2d& operator=(const OxGeNurbCurve2d&) = delete;

    /// False when the curve could not be built.
    bool isDefined() const { return data_ != nullptr; }
    /// Closes the curve: when its ends differ, it is carried on to its start. Does nothing to a curve that is
    /// closed already or not defined.
    OxGeNurbCurve2d& makeClosed();

    OxGe::EntityId type() const override { return OxGe::kNurbCurve2d; }
    bool isClosed(const OxGeTol& tolerance = OxGeContext::gTol) const override;
    OxGeBoundBlock2d boundBlock() const override;
    void getInterval(OxGeInterval& interval) const override;
    void getSamplePoints(double fromParameter, double toParameter, double tolerance, OxGePoint2dArray& points,
                         OxGeDoubleArray& parameters) const override;

    /// For the library itself; null when the curve is not defined.
    const OxGeNurbCurveData* data() const { return data_; }

private:
    OxGeNurbCurveData* data_ = nullptr;
};
