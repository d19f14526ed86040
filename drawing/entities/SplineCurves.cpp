// Splines as plane curves.
#include "drawing/entities/SplineCurves.h"

#include "drawing/database/Lists.h"

namespace drawing {
namespace {

OxGePoint2dArray InPlane(const std::vector<OxGePoint3d>& points) {
    OxGePoint2dArray plane(static_cast<int>(points.size()));
    for (const OxGePoint3d& point : points) {
        plane.append({point.x, point.y});
    }
    return plane;
}

std::unique_ptr<OxGeNurbCurve2d> Build(const FitData& data) {
    const OxGePoint2dArray points = InPlane(data.points);
    if (!data.tangentsExist) {
        return std::make_unique<OxGeNurbCurve2d>(points);
    }
    return std::make_unique<OxGeNurbCurve2d>(points, OxGeVector2d{data.startTangent.x, data.startTangent.y},
                                             OxGeVector2d{data.endTangent.x, data.endTangent.y});
}

std::unique_ptr<OxGeNurbCurve2d> Build(const NurbsData& data) {
    const OxGePoint2dArray points = InPlane(data.controlPoints);
    const OxGeKnotVector knots(static_cast<int>(data.knots.size()), data.knots.data(), kKnotTolerance);
    std::unique_ptr<OxGeNurbCurve2d> curve;
    if (data.weights.empty()) {
        curve = std::make_unique<OxGeNurbCurve2d>(data.degree, knots, points, data.periodic);
    } else {
        OxGeDoubleArray weights;
        CopyTo(weights, data.weights);
        curve = std::make_unique<OxGeNurbCurve2d>(data.degree, knots, points, weights, data.periodic);
    }
    if (data.closed) {
        curve->makeClosed();
    }
    return curve;
}

} // namespace

std::unique_ptr<OxGeNurbCurve2d> BuildCurve(const SplineData& data) {
    return std::visit([](const auto& form) { return Build(form); }, data);
}

} // namespace drawing
