// Splines as data, and the curves that they are.
#pragma once

#include "OxDb/OxGeNurbCurve2d.h"

#include <memory>
#include <variant>
#include <vector>

namespace drawing {

/// Knots nearer to each other than this count as one knot repeated.
inline constexpr double kKnotTolerance = 1e-9;

/// A spline through points.
struct FitData {
    std::vector<OxGePoint3d> points;
    int degree = 3;
    double tolerance = 0.0;
    bool tangentsExist = false;
    OxGeVector3d startTangent;
    OxGeVector3d endTangent;
};

/// A spline from control points; without weights it is not rational.
struct NurbsData {
    int degree = 3;
    bool closed = false;
    bool periodic = false;
    std::vector<OxGePoint3d> controlPoints;
    std::vector<double> knots;
    std::vector<double> weights;
};

/// What a spline was drawn with.
using SplineData = std::variant<FitData, NurbsData>;

/// The plane curve of a spline: never null, but not defined when the data makes no curve.
OXDB_API std::unique_ptr<OxGeNurbCurve2d> BuildCurve(const SplineData& data);

} // namespace drawing
