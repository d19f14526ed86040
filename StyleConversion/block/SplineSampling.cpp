#include "StyleConversion/block/SplineSampling.h"

#include "OxDb/OxGeNurbCurve2d.h"
#include "StyleConversion/block/Limits.h"

#include <algorithm>
#include <memory>

namespace block {
namespace {

// Parts of the curve's extent that the samples may be off by.
constexpr double kToleranceOfExtent = 0.001;
// Drawing units, for a curve without any extent.
constexpr double kToleranceWithoutExtent = 0.001;
constexpr double kKnotTolerance = 1e-9;
constexpr double kIntervalTolerance = 1e-12;

OxGePoint2dArray InPlane(const OxGePoint3dArray& points) {
    OxGePoint2dArray flat(points.length());
    for (const OxGePoint3d& point : points) {
        flat.append({point.x, point.y});
    }
    return flat;
}

/// The curve of a spline, and how many points define it. Null when it cannot be read.
struct SplineCurve {
    std::unique_ptr<OxGeNurbCurve2d> curve;
    int definingPoints = 0;
};

SplineCurve CurveThroughFitPoints(const OxDbSpline& spline) {
    OxGePoint3dArray fitPoints;
    int degree = 0;
    double fitTolerance = 0.0;
    bool tangentsExist = false;
    OxGeVector3d start;
    OxGeVector3d end;
    if (spline.getFitData(fitPoints, degree, fitTolerance, tangentsExist, start, end) != Oxsys::eOk) {
        return {};
    }
    const OxGePoint2dArray points = InPlane(fitPoints);
    const OxGeTol tolerance;
    auto curve = tangentsExist
                     ? std::make_unique<OxGeNurbCurve2d>(points, OxGeVector2d{start.x, start.y},
                                                         OxGeVector2d{end.x, end.y}, true, true, tolerance)
                     : std::make_unique<OxGeNurbCurve2d>(points, tolerance);
    return {std::move(curve), points.length()};
}

SplineCurve CurveFromControlPoints(const OxDbSpline& spline) {
    int degree = 0;
    bool rational = false;
    bool closed = false;
    bool periodic = false;
    OxGePoint3dArray controlPoints;
    OxGeDoubleArray knots;
    OxGeDoubleArray weights;
    double controlPointTolerance = 0.0;
    double knotTolerance = 0.0;
    if (spline.getNurbsData(degree, rational, closed, periodic, controlPoints, knots, weights,
                            controlPointTolerance, knotTolerance) != Oxsys::eOk) {
        return {};
    }
    const OxGePoint2dArray points = InPlane(controlPoints);
    const OxGeKnotVector knotVector(knots, kKnotTolerance);
    auto curve = rational ? std::make_unique<OxGeNurbCurve2d>(degree, knotVector, points, weights, periodic)
                          : std::make_unique<OxGeNurbCurve2d>(degree, knotVector, points, periodic);
    if (closed) {
        curve->makeClosed();
    }
    return {std::move(curve), points.length()};
}

// How far the samples may be off the curve, in drawing units.
double InitialTolerance(const OxGeNurbCurve2d& curve) {
    OxGePoint2d minimum;
    OxGePoint2d maximum;
    curve.boundBlock().getMinMaxPoints(minimum, maximum);
    const double extent = std::max(maximum.x - minimum.x, maximum.y - minimum.y);
    const double tolerance = kToleranceOfExtent * extent;
    return tolerance == 0.0 ? kToleranceWithoutExtent : tolerance;
}

OxGePoint2dArray Sample(const OxGeNurbCurve2d& curve, double tolerance) {
    OxGeInterval interval(kIntervalTolerance);
    curve.getInterval(interval);
    OxGePoint2dArray points;
    OxGeDoubleArray parameters;
    curve.getSamplePoints(interval.lowerBound(), interval.upperBound(), tolerance, points, parameters);
    return points;
}

// Halves the tolerance while there are fewer samples than defining points, else doubles it while there are
// very many. A curve of very many defining points could go back and forth between two tolerances for ever: it
// gets the finer of the two.
OxGePoint2dArray SampleEvenly(const OxGeNurbCurve2d& curve, int definingPoints) {
    double tolerance = InitialTolerance(curve);
    bool halved = false;
    bool doubled = false;
    for (;;) {
        OxGePoint2dArray points = Sample(curve, tolerance);
        const bool tooFew = points.length() < definingPoints;
        double next = tolerance;
        if (tooFew && tolerance > kFinestSampling) {
            next = tolerance * 0.5;
            halved = true;
        } else if (points.length() >= kManySamples && tolerance < kCoarsestSampling && !halved) {
            next = tolerance * 2.0;
            doubled = true;
        }
        if (next == tolerance) { // An infinite tolerance does not change either.
            return points;
        }
        if (halved && doubled) {
            return Sample(curve, next);
        }
        tolerance = next;
    }
}

} // namespace

OxGePoint2dArray SampleSpline(const OxDbSpline& spline) {
    const SplineCurve source =
        spline.hasFitData() ? CurveThroughFitPoints(spline) : CurveFromControlPoints(spline);
    if (source.curve == nullptr || !source.curve->isDefined()) {
        return OxGePoint2dArray();
    }
    return SampleEvenly(*source.curve, source.definingPoints);
}

} // namespace block
