// Cubic spline interpolation: a tridiagonal system for the derivatives, then B-spline form.
#include "drawing/geometry/Interpolation.h"

#include "drawing/geometry/BezierChain.h"
#include "drawing/geometry/Limits.h"

#include <cstddef>
#include <utility>

namespace geometry {

namespace {

/// The unit vector along `vector`, or nothing for a zero vector.
std::optional<Vector> Direction(Vector vector) {
    // Scaled first, so that neither tiny nor huge vectors lose their direction in the squares.
    const double largest = std::fmax(std::fabs(vector.x), std::fabs(vector.y));
    if (!(largest > 0.0)) {
        return std::nullopt;
    }
    const Vector scaled = {vector.x / largest, vector.y / largest};
    return (1.0 / Length(scaled)) * scaled;
}

std::vector<Point> WithoutRepeats(const std::vector<Point>& points) {
    std::vector<Point> kept;
    kept.reserve(points.size());
    for (const Point& point : points) {
        if (kept.empty() || Distance(kept.back(), point) > kSamePoint) {
            kept.push_back(point);
        }
    }
    return kept;
}

/// One equation: below * D[i-1] + middle * D[i] + above * D[i+1] = right.
struct Row {
    double below = 0.0;
    double middle = 1.0;
    double above = 0.0;
    Vector right;
};

/// Second derivatives equal on both sides of every inner point; at each end the derivative given, or a second
/// derivative of zero.
std::vector<Row> DerivativeEquations(const std::vector<Point>& points, const std::vector<double>& lengths,
                                     const std::optional<Vector>& start, const std::optional<Vector>& end) {
    const std::size_t last = points.size() - 1;
    std::vector<Row> rows(points.size());
    const auto slope = [&](std::size_t segment) {
        return (1.0 / lengths[segment]) * (points[segment + 1] - points[segment]);
    };
    rows[0] = start ? Row{0.0, 1.0, 0.0, *start} : Row{0.0, 2.0, 1.0, 3.0 * slope(0)};
    for (std::size_t index = 1; index < last; ++index) {
        const double before = lengths[index - 1];
        const double after = lengths[index];
        const double sum = before + after;
        rows[index] = {after / sum, 2.0, before / sum,
                       (3.0 * after / sum) * slope(index - 1) + (3.0 * before / sum) * slope(index)};
    }
    rows[last] = end ? Row{0.0, 1.0, 0.0, *end} : Row{1.0, 2.0, 0.0, 3.0 * slope(last - 1)};
    return rows;
}

/// Elimination without pivots: every row's middle outweighs its other two.
std::vector<Vector> SolveTridiagonal(std::vector<Row> rows) {
    for (std::size_t index = 1; index < rows.size(); ++index) {
        const double factor = rows[index].below / rows[index - 1].middle;
        rows[index].middle -= factor * rows[index - 1].above;
        rows[index].right = rows[index].right - factor * rows[index - 1].right;
    }
    std::vector<Vector> solution(rows.size());
    for (std::size_t index = rows.size(); index-- > 0;) {
        Vector right = rows[index].right;
        if (index + 1 < rows.size()) {
            right = right - rows[index].above * solution[index + 1];
        }
        solution[index] = (1.0 / rows[index].middle) * right;
    }
    return solution;
}

/// The B-spline form of the piecewise cubic with these points, derivatives and parameter lengths. Inner
/// control point i is the polar form of the piece at i taken at the parameters of points i - 1, i and i + 1.
NurbsCurve ToBSpline(const std::vector<Point>& points, const std::vector<Vector>& derivatives,
                     const std::vector<double>& lengths) {
    const std::size_t last = points.size() - 1;
    NurbsCurve curve;
    curve.degree = 3;
    curve.knots.assign(4, 0.0);
    curve.controlPoints.push_back(points[0]);
    curve.controlPoints.push_back(points[0] + (lengths[0] / 3.0) * derivatives[0]);
    double parameter = 0.0;
    for (std::size_t index = 1; index < last; ++index) {
        const double before = lengths[index - 1];
        const double after = lengths[index];
        const Vector slope = (1.0 / after) * (points[index + 1] - points[index]);
        const Vector halfSecond =
            (1.0 / after) * (3.0 * slope - 2.0 * derivatives[index] - derivatives[index + 1]);
        curve.controlPoints.push_back(points[index] + ((after - before) / 3.0) * derivatives[index] -
                                      (before * after / 3.0) * halfSecond);
        parameter += before;
        curve.knots.push_back(parameter);
    }
    curve.controlPoints.push_back(points[last] - (lengths[last - 1] / 3.0) * derivatives[last]);
    curve.controlPoints.push_back(points[last]);
    curve.knots.insert(curve.knots.end(), 4, parameter + lengths[last - 1]);
    return curve;
}

} // namespace

Status InterpolateThroughPoints(const std::vector<Point>& points, const std::optional<EndTangents>& tangents,
                                NurbsCurve& curve) {
    if (points.empty()) {
        return Status::kTooFewPoints;
    }
    if (const Status status = CheckPoints(points); status != Status::kOk) {
        return status;
    }
    std::optional<Vector> start;
    std::optional<Vector> end;
    if (tangents) {
        if (!IsFinite(tangents->start) || !IsFinite(tangents->end)) {
            return Status::kNotFinite;
        }
        start = Direction(tangents->start);
        end = Direction(tangents->end);
    }
    const std::vector<Point> kept = WithoutRepeats(points);
    if (kept.size() == 1) {
        curve = {3, {0.0, 0.0, 0.0, 0.0, 1.0, 1.0, 1.0, 1.0}, std::vector<Point>(4, kept[0]), {}};
        return Status::kOk;
    }
    std::vector<double> lengths;
    lengths.reserve(kept.size() - 1);
    for (std::size_t index = 1; index < kept.size(); ++index) {
        lengths.push_back(Distance(kept[index - 1], kept[index]));
    }
    const std::vector<Vector> derivatives = SolveTridiagonal(DerivativeEquations(kept, lengths, start, end));
    curve = ToBSpline(kept, derivatives, lengths);
    return Status::kOk;
}

} // namespace geometry
