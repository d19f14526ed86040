#include "StyleConversion/block/SplineSampling.h"

#include "StyleConversion/block/Faithful.h"
#include "StyleConversion/block/Limits.h"
#include "StyleConversion/interfaces/HostNames.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

namespace block {
namespace {

// The part of the curve's extent that the samples may be off by.
constexpr double kToleranceOfExtent = 0.001;
constexpr double kKnotTolerance = 1e-9;
constexpr double kIntervalTolerance = 1e-12;

// The points below those of space.
void Flatten(host::Points3d& points, host::Points2d& flat) {
    for (int i = 0; i < host::LengthOf(points); ++i) {
        const OxGePoint3d& point = host::ElementAt(points, i);
        host::Append(flat, host::Point(point.x, point.y));
    }
}

/// The curve of a spline, and how many points define it. Null when it cannot be read.
struct SplineCurve {
    std::unique_ptr<OxGeNurbCurve2d> curve;
    int definingPoints = 0;
};

SplineCurve CurveThroughFitPoints(OxDbSpline& spline) {
    host::FitData data;
    if (!host::ReadFitData(spline, data)) {
        return {};
    }
    host::Points2d points;
    Flatten(data.points, points);
    std::unique_ptr<OxGeNurbCurve2d> curve;
    if (data.tangentsExist) {
        curve = host::CurveThrough(points, host::Vector(data.startTangent.x, data.startTangent.y),
                                   host::Vector(data.endTangent.x, data.endTangent.y));
    } else {
        curve = host::CurveThrough(points);
    }
    return {std::move(curve), host::LengthOf(points)};
}

SplineCurve CurveFromControlPoints(OxDbSpline& spline) {
    host::NurbsData data;
    if (!host::ReadNurbsData(spline, data)) {
        return {};
    }
    host::Points2d points;
    Flatten(data.controlPoints, points);
    std::unique_ptr<OxGeNurbCurve2d> curve;
    if (data.rational) {
        curve = host::CurveOf(data.degree, data.knots, kKnotTolerance, points, data.weights, data.periodic);
    } else {
        curve = host::CurveOf(data.degree, data.knots, kKnotTolerance, points, data.periodic);
    }
    if (data.closed) {
        curve->makeClosed();
    }
    return {std::move(curve), host::LengthOf(points)};
}

// How far the samples may be off the curve, in drawing units: that part of its extent, of one where it has
// none.
double PartOfExtent(OxGeNurbCurve2d& curve, double part) {
    OxGePoint2d minimum;
    OxGePoint2d maximum;
    curve.boundBlock().getMinMaxPoints(minimum, maximum);
    const double extent = std::max(maximum.x - minimum.x, maximum.y - minimum.y);
    return part * extent == 0.0 ? part : part * extent;
}

std::vector<CurveVertex> Sample(OxGeNurbCurve2d& curve, double tolerance) {
    const host::ParameterRange range = host::ParametersOf(curve, kIntervalTolerance);
    host::Points2d points;
    host::Doubles parameters;
    curve.getSamplePoints(range.lower, range.upper, tolerance, points, parameters);
    const int count = host::LengthOf(points);
    std::vector<CurveVertex> samples;
    samples.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        samples.push_back({host::ElementAt(points, i), 0.0});
    }
    return samples;
}

// Halves the tolerance while there are fewer samples than defining points, else doubles it while there are
// very many. A curve of very many defining points could go back and forth between two tolerances for ever: it
// gets the finer of the two.
std::vector<CurveVertex> SampleEvenly(OxGeNurbCurve2d& curve, int definingPoints) {
    double tolerance = PartOfExtent(curve, kToleranceOfExtent);
    bool halved = false;
    bool doubled = false;
    for (;;) {
        std::vector<CurveVertex> points = Sample(curve, tolerance);
        const auto count = static_cast<int>(points.size());
        const bool tooFew = count < definingPoints;
        double next = tolerance;
        if (tooFew && tolerance > kFinestSampling) {
            next = tolerance * 0.5;
            halved = true;
        } else if (count >= kManySamples && tolerance < kCoarsestSampling && !halved) {
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

std::vector<CurveVertex> SampleSpline(OxDbSpline& spline) {
    const SplineCurve source =
        spline.hasFitData() ? CurveThroughFitPoints(spline) : CurveFromControlPoints(spline);
    if (source.curve == nullptr) {
        return {};
    }
    return IsFaithful() ? FollowClosely(*source.curve) : SampleEvenly(*source.curve, source.definingPoints);
}

std::vector<CurveVertex> FollowClosely(OxGeNurbCurve2d& curve) {
    return FollowCurve(curve, PartOfExtent(curve, FaithfulCurveTolerance()));
}

} // namespace block
