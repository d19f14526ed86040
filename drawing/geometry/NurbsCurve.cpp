// NURBS curves in the plane: checks, evaluation by de Boor's rule, closing.
#include "drawing/geometry/NurbsCurve.h"

#include "drawing/geometry/BezierChain.h"
#include "drawing/geometry/Limits.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace geometry {

namespace {

Status CheckNumbers(const std::vector<double>& values) {
    for (const double value : values) {
        if (!std::isfinite(value)) {
            return Status::kNotFinite;
        }
        if (std::fabs(value) > kMaximumCoordinate) {
            return Status::kOutOfRange;
        }
    }
    return Status::kOk;
}

Status CheckWeights(const std::vector<double>& weights, std::size_t pointCount) {
    if (weights.empty()) {
        return Status::kOk;
    }
    if (weights.size() != pointCount) {
        return Status::kBadWeights;
    }
    const auto [least, greatest] = std::minmax_element(weights.begin(), weights.end());
    if (!(*least > 0.0) || *greatest / *least > kMaximumWeightRatio) {
        return Status::kBadWeights;
    }
    return Status::kOk;
}

/// Raises knots that lie below their predecessor by rounding only; false where one lies further below.
bool MakeAscending(std::vector<double>& knots) {
    for (std::size_t index = 1; index < knots.size(); ++index) {
        if (knots[index] < knots[index - 1]) {
            if (knots[index - 1] - knots[index] > kSameKnot) {
                return false;
            }
            knots[index] = knots[index - 1];
        }
    }
    return true;
}

/// From one period (n + 1 knots, n points) to the full form: the points once more from the start, `degree` of
/// them, and the knots carried on by the period on both sides.
void RepeatPeriod(NurbsCurve& curve) {
    const std::vector<double> period = curve.knots;
    const std::size_t count = curve.controlPoints.size();
    const auto degree = static_cast<std::size_t>(curve.degree);
    const double length = period.back() - period.front();
    for (std::size_t index = 0; index < degree; ++index) {
        curve.controlPoints.push_back(curve.controlPoints[index]);
        if (!curve.weights.empty()) {
            curve.weights.push_back(curve.weights[index]);
        }
    }
    std::vector<double> before(degree);
    for (std::size_t index = 0; index < degree; ++index) {
        const std::size_t turns = index / count + 1;
        const double beyond = length * static_cast<double>(turns);
        before[degree - 1 - index] = period[count - 1 - index % count] - beyond;
        curve.knots.push_back(period[1 + index % count] + beyond);
    }
    curve.knots.insert(curve.knots.begin(), before.begin(), before.end());
}

/// A knot inside the interval that is repeated more often than the degree leaves the two sides on different
/// control points: true when these are the same point everywhere.
bool HoldsTogether(const NurbsCurve& curve) {
    const auto degree = static_cast<std::size_t>(curve.degree);
    const std::size_t count = curve.controlPoints.size();
    const double start = curve.knots[degree];
    const double end = curve.knots[count];
    for (std::size_t first = 1; first < curve.knots.size();) {
        std::size_t next = first + 1;
        while (next < curve.knots.size() && curve.knots[next] == curve.knots[first]) {
            ++next;
        }
        const bool inside = curve.knots[first] > start && curve.knots[first] < end;
        if (inside && next - first > degree) {
            const Point left = curve.controlPoints[first - 1];
            const Point right = curve.controlPoints[next - 1 - degree];
            if (Distance(left, right) > kSamePoint) {
                return false;
            }
        }
        first = next;
    }
    return true;
}

/// The knot span [knots[k], knots[k + 1]) that holds the parameter, not empty.
std::size_t FindSpan(const NurbsCurve& curve, double parameter) {
    const auto degree = static_cast<std::size_t>(curve.degree);
    const auto first = curve.knots.begin() + static_cast<std::ptrdiff_t>(degree);
    const auto last = curve.knots.begin() + static_cast<std::ptrdiff_t>(curve.controlPoints.size());
    auto after = std::upper_bound(first, last, parameter);
    if (after == last) {
        after = std::lower_bound(first, last, *last);
    }
    return static_cast<std::size_t>(after - curve.knots.begin()) - 1;
}

/// The curve's pieces as one curve whose inner knots are all repeated `degree` times.
NurbsCurve FromChain(const BezierChain& chain) {
    NurbsCurve curve;
    curve.degree = chain.degree;
    const auto degree = static_cast<std::size_t>(chain.degree);
    curve.knots.assign(degree + 1, chain.breaks.front());
    for (std::size_t piece = 0; piece < PieceCount(chain); ++piece) {
        const std::size_t first = piece * (degree + 1);
        // Neighbours share the weight at their joint: a piece's weights mean the same times any factor.
        const double factor =
            piece == 0 || !IsRational(chain) ? 1.0 : curve.weights.back() / chain.weights[first];
        for (std::size_t index = piece == 0 ? 0 : 1; index <= degree; ++index) {
            curve.controlPoints.push_back(chain.points[first + index]);
            if (IsRational(chain)) {
                curve.weights.push_back(factor * chain.weights[first + index]);
            }
        }
        curve.knots.insert(curve.knots.end(), degree, chain.breaks[piece + 1]);
    }
    curve.knots.push_back(chain.breaks.back());
    return curve;
}

double PolygonLength(const std::vector<Point>& points) {
    double length = 0.0;
    for (std::size_t index = 1; index < points.size(); ++index) {
        length += Distance(points[index - 1], points[index]);
    }
    return length;
}

} // namespace

Status MakeNurbsCurve(int degree, const std::vector<double>& knots, const std::vector<Point>& controlPoints,
                      const std::vector<double>& weights, bool periodic, NurbsCurve& curve) {
    if (degree < 1 || degree > kMaximumDegree) {
        return Status::kBadDegree;
    }
    for (const std::vector<double>* values : {&knots, &weights}) {
        if (const Status status = CheckNumbers(*values); status != Status::kOk) {
            return status;
        }
    }
    if (const Status status = CheckPoints(controlPoints); status != Status::kOk) {
        return status;
    }
    const std::size_t count = controlPoints.size();
    const std::size_t order = static_cast<std::size_t>(degree) + 1;
    const bool onePeriod = periodic && count >= 1 && knots.size() == count + 1;
    if (count < (onePeriod ? 2 : order)) {
        return Status::kTooFewPoints;
    }
    if (!onePeriod && knots.size() != count + order) {
        return Status::kBadKnotCount;
    }
    if (const Status status = CheckWeights(weights, count); status != Status::kOk) {
        return status;
    }
    NurbsCurve made{degree, knots, controlPoints, weights};
    if (!MakeAscending(made.knots)) {
        return Status::kDecreasingKnots;
    }
    if (onePeriod) {
        RepeatPeriod(made);
    }
    const Interval interval = ParameterInterval(made);
    if (!(interval.start < interval.end)) {
        return Status::kEmptyInterval;
    }
    if (!HoldsTogether(made)) {
        return Status::kDiscontinuous;
    }
    curve = std::move(made);
    return Status::kOk;
}

Interval ParameterInterval(const NurbsCurve& curve) {
    return {curve.knots[static_cast<std::size_t>(curve.degree)], curve.knots[curve.controlPoints.size()]};
}

Point Evaluate(const NurbsCurve& curve, double parameter) {
    const Interval interval = ParameterInterval(curve);
    if (!(parameter > interval.start)) {
        parameter = interval.start;
    }
    parameter = std::min(parameter, interval.end);
    const std::size_t span = FindSpan(curve, parameter);
    const auto degree = static_cast<std::size_t>(curve.degree);
    const std::size_t base = span - degree;
    const auto from = static_cast<std::ptrdiff_t>(base);
    const auto to = from + static_cast<std::ptrdiff_t>(degree) + 1;
    std::vector<Point> points(curve.controlPoints.begin() + from, curve.controlPoints.begin() + to);
    std::vector<double> weights;
    if (!curve.weights.empty()) {
        weights.assign(curve.weights.begin() + from, curve.weights.begin() + to);
    }
    for (std::size_t round = 1; round <= degree; ++round) {
        for (std::size_t index = degree; index >= round; --index) {
            const double low = curve.knots[base + index];
            const double high = curve.knots[span + 1 + index - round];
            Blend(points.data(), weights.empty() ? nullptr : weights.data(), index - 1, index, index,
                  (parameter - low) / (high - low));
        }
    }
    return points[degree];
}

bool IsClosed(const NurbsCurve& curve) {
    const Interval interval = ParameterInterval(curve);
    return Distance(Evaluate(curve, interval.start), Evaluate(curve, interval.end)) <= kSamePoint;
}

void MakeClosed(NurbsCurve& curve) {
    if (IsClosed(curve)) {
        return;
    }
    NurbsCurve closed = FromChain(DecomposeIntoBezier(curve));
    const Point start = closed.controlPoints.front();
    const Point end = closed.controlPoints.back();
    const double speed = PolygonLength(closed.controlPoints) / (closed.knots.back() - closed.knots.front());
    const double newEnd = closed.knots.back() + Distance(end, start) / speed;
    closed.knots.pop_back();
    for (int step = 1; step <= closed.degree; ++step) {
        closed.controlPoints.push_back(Between(end, start, static_cast<double>(step) / closed.degree));
        if (!closed.weights.empty()) {
            closed.weights.push_back(closed.weights.back());
        }
        closed.knots.push_back(newEnd);
    }
    closed.knots.push_back(newEnd);
    curve = std::move(closed);
}

} // namespace geometry
