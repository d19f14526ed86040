// Rational B-spline curves of the plane, over the geometry.
#include "OxDb/OxGeNurbCurve2d.h"

#include "drawing/geometry/BoundingBox.h"
#include "drawing/geometry/Interpolation.h"
#include "drawing/geometry/NurbCurveData.h"
#include "drawing/geometry/Sampling.h"

#include <algorithm>
#include <optional>

namespace {

std::vector<OxGePoint2d> ToPoints(const OxGePoint2dArray& points) {
    return {points.begin(), points.end()};
}

// The curve from control points, or null when the data makes none.
OxGeNurbCurveData* MakeFromControlPoints(int degree, const OxGeKnotVector& knots,
                                         const OxGePoint2dArray& controlPoints,
                                         const OxGeDoubleArray& weights, bool isPeriodic) {
    std::vector<double> knotList;
    knotList.reserve(static_cast<std::size_t>(std::max(0, knots.length())));
    for (int index = 0; index < knots.length(); ++index) {
        knotList.push_back(knots[index]);
    }
    const std::vector<double> weightList(weights.begin(), weights.end());
    OxGeNurbCurveData data;
    const geometry::Status status = geometry::MakeNurbsCurve(degree, knotList, ToPoints(controlPoints),
                                                             weightList, isPeriodic, data.curve);
    return status == geometry::Status::kOk ? new OxGeNurbCurveData(std::move(data)) : nullptr;
}

OxGeNurbCurveData* MakeThroughPoints(const OxGePoint2dArray& fitPoints,
                                     const std::optional<geometry::EndTangents>& tangents) {
    OxGeNurbCurveData data;
    const geometry::Status status =
        geometry::InterpolateThroughPoints(ToPoints(fitPoints), tangents, data.curve);
    return status == geometry::Status::kOk ? new OxGeNurbCurveData(std::move(data)) : nullptr;
}

// A tangent that is not defined leaves its end free, as a zero vector does.
geometry::Vector TangentOf(const OxGeVector2d& tangent, bool isDefined) {
    return isDefined ? geometry::Vector{tangent.x, tangent.y} : geometry::Vector{};
}

} // namespace

OxGeNurbCurve2d::OxGeNurbCurve2d(int degree, const OxGeKnotVector& knots,
                                 const OxGePoint2dArray& controlPoints, bool isPeriodic)
    : data_(MakeFromControlPoints(degree, knots, controlPoints, OxGeDoubleArray(), isPeriodic)) {}

OxGeNurbCurve2d::OxGeNurbCurve2d(int degree, const OxGeKnotVector& knots,
                                 const OxGePoint2dArray& controlPoints, const OxGeDoubleArray& weights,
                                 bool isPeriodic)
    : data_(MakeFromControlPoints(degree, knots, controlPoints, weights, isPeriodic)) {}

OxGeNurbCurve2d::OxGeNurbCurve2d(const OxGePoint2dArray& fitPoints, const OxGeVector2d& startTangent,
                                 const OxGeVector2d& endTangent, bool startTangentDefined,
                                 bool endTangentDefined, const OxGeTol& /*fitTolerance*/)
    : data_(MakeThroughPoints(fitPoints, geometry::EndTangents{TangentOf(startTangent, startTangentDefined),
                                                               TangentOf(endTangent, endTangentDefined)})) {}

OxGeNurbCurve2d::OxGeNurbCurve2d(const OxGePoint2dArray& fitPoints, const OxGeTol& /*fitTolerance*/)
    : data_(MakeThroughPoints(fitPoints, std::nullopt)) {}

OxGeNurbCurve2d::~OxGeNurbCurve2d() {
    delete data_;
}

OxGeNurbCurve2d& OxGeNurbCurve2d::makeClosed() {
    if (data_ != nullptr) {
        geometry::MakeClosed(data_->curve);
    }
    return *this;
}

bool OxGeNurbCurve2d::isClosed(const OxGeTol& tolerance) const {
    if (data_ == nullptr) {
        return false;
    }
    const geometry::Interval interval = geometry::ParameterInterval(data_->curve);
    const OxGePoint2d start = geometry::Evaluate(data_->curve, interval.start);
    return start.isEqualTo(geometry::Evaluate(data_->curve, interval.end), tolerance);
}

OxGeBoundBlock2d OxGeNurbCurve2d::boundBlock() const {
    if (data_ == nullptr) {
        return {};
    }
    const geometry::Box box = geometry::BoundingBox(data_->curve);
    return {box.minimum, box.maximum};
}

void OxGeNurbCurve2d::getInterval(OxGeInterval& interval) const {
    const geometry::Interval whole =
        data_ != nullptr ? geometry::ParameterInterval(data_->curve) : geometry::Interval();
    interval.set(whole.start, whole.end);
}

void OxGeNurbCurve2d::getSamplePoints(double fromParameter, double toParameter, double tolerance,
                                      OxGePoint2dArray& points, OxGeDoubleArray& parameters) const {
    points.removeAll();
    parameters.removeAll();
    if (data_ == nullptr) {
        return;
    }
    std::vector<geometry::CurveSample> samples;
    geometry::SamplePoints(data_->curve, fromParameter, toParameter, tolerance, samples);
    points.setPhysicalLength(static_cast<int>(samples.size()));
    parameters.setPhysicalLength(static_cast<int>(samples.size()));
    for (const geometry::CurveSample& sample : samples) {
        points.append(sample.point);
        parameters.append(sample.parameter);
    }
}
