// Splines as points along them.
#pragma once

#include "StyleConversion/interfaces/HostNames.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace block {

/// Points along the spline from its start to its end, close enough for its size and no fewer, where that is
/// possible, than the points that define it. None when the spline cannot be read or makes no curve.
std::vector<OxGePoint2d> SampleSpline(OxDbSpline& spline);

/// Points along a curve of the plane from its start to its end, `tolerance` (drawing units) off it at most.
template <class Curve>
std::vector<OxGePoint2d> SampleCurve(Curve& curve, double tolerance) {
    constexpr double kIntervalTolerance = 1e-12;
    const host::ParameterRange range = host::ParametersOf(curve, kIntervalTolerance);
    host::Points2d points;
    host::Doubles parameters;
    curve.getSamplePoints(range.lower, range.upper, tolerance, points, parameters);
    const int count = host::LengthOf(points);
    std::vector<OxGePoint2d> samples;
    samples.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        samples.push_back(host::ElementAt(points, i));
    }
    return samples;
}

/// That part of the larger side of the box around a curve; of one drawing unit where it has no extent.
template <class Curve>
double PartOfExtent(Curve& curve, double part) {
    OxGePoint2d minimum;
    OxGePoint2d maximum;
    curve.boundBlock().getMinMaxPoints(minimum, maximum);
    const double extent = std::max(maximum.x - minimum.x, maximum.y - minimum.y);
    return part * extent == 0.0 ? part : part * extent;
}

/// Points along a curve, off it by at most a millionth of its extent. None where the database cannot sample
/// curves of its class.
template <class Curve>
std::vector<OxGePoint2d> SampleClosely(Curve& curve) {
    constexpr double kPart = 1e-6;
    if constexpr (requires(host::Points2d & points, host::Doubles & parameters) {
                      curve.boundBlock();
                      curve.getSamplePoints(0.0, 1.0, kPart, points, parameters);
                  }) {
        return SampleCurve(curve, PartOfExtent(curve, kPart));
    } else {
        return {};
    }
}

} // namespace block
