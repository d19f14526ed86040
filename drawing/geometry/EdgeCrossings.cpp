// Where a monotone edge of a hatch boundary reaches a line of a family.
#include "drawing/geometry/MonotoneEdges.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace geometry {

namespace {

Point ConicCrossing(const ConicArc& conic, const MonotoneEdge& edge, const HatchFrame& frame, double level) {
    const LevelWave wave = MakeLevelWave(conic, frame);
    const double middle = 0.5 * (edge.startAngle + edge.endAngle);
    const double halfTurns = std::floor((middle - wave.phase) / std::numbers::pi);
    const bool falling = std::fmod(halfTurns, 2.0) == 0.0;
    const double cosine = std::clamp((level - wave.center) / wave.amplitude, -1.0, 1.0);
    const double angle = wave.phase + halfTurns * std::numbers::pi + std::acos(falling ? cosine : -cosine);
    return ConicPoint(conic, std::clamp(angle, edge.startAngle, edge.endAngle));
}

/// The Bernstein polynomial with these coefficients at `fraction`.
double EvaluateBernstein(std::span<const double> coefficients, std::vector<double>& scratch,
                         double fraction) {
    scratch.assign(coefficients.begin(), coefficients.end());
    for (std::size_t round = 1; round < scratch.size(); ++round) {
        for (std::size_t index = 0; index + round < scratch.size(); ++index) {
            scratch[index] = (1.0 - fraction) * scratch[index] + fraction * scratch[index + 1];
        }
    }
    return scratch.front();
}

/// The fraction at which a polynomial that changes its sign once is zero: the secant of the bracket, the side
/// that stays being halved in value (so that both sides close in), and plain halving every third time.
double RootOf(std::span<const double> coefficients) {
    double low = 0.0;
    double high = 1.0;
    double atLow = coefficients.front();
    double atHigh = coefficients.back();
    if (atLow == 0.0 || (atLow > 0.0) == (atHigh > 0.0)) {
        return std::fabs(atLow) <= std::fabs(atHigh) ? 0.0 : 1.0;
    }
    std::vector<double> scratch;
    int lastSide = 0;
    for (int round = 1; round <= 150 && high - low > std::numeric_limits<double>::epsilon() * high; ++round) {
        double middle = 0.5 * (low + high);
        if (round % 3 != 0) {
            const double secant = low + (high - low) * (atLow / (atLow - atHigh));
            middle = secant > low && secant < high ? secant : middle;
        }
        const double value = EvaluateBernstein(coefficients, scratch, middle);
        if (value == 0.0) {
            return middle;
        }
        const int side = (value > 0.0) == (atLow > 0.0) ? -1 : 1;
        if (side < 0) {
            low = middle;
            atLow = value;
            atHigh = lastSide == side ? 0.5 * atHigh : atHigh;
        } else {
            high = middle;
            atHigh = value;
            atLow = lastSide == side ? 0.5 * atLow : atLow;
        }
        lastSide = side;
    }
    return 0.5 * (low + high);
}

Point BezierCrossing(const MonotoneBoundary& boundary, const MonotoneEdge& edge, const HatchFrame& frame,
                     double level) {
    const std::span<const Point> points = std::span(boundary.points).subspan(edge.index, edge.order);
    const std::span<const double> weights = std::span(boundary.weights).subspan(edge.index, edge.order);
    std::vector<double> above(edge.order);
    for (std::size_t index = 0; index < edge.order; ++index) {
        above[index] = weights[index] * (RawLevel(frame, points[index]) - level);
    }
    return EvaluateBezier(points, weights, RootOf(above));
}

} // namespace

Point CrossingAt(const MonotoneBoundary& boundary, const MonotoneEdge& edge, const HatchFrame& frame,
                 double level) {
    if (level == edge.startLevel) {
        return edge.start;
    }
    if (level == edge.endLevel) {
        return edge.end;
    }
    switch (edge.shape) {
    case EdgeShape::kConic:
        return ConicCrossing(boundary.conics[edge.index], edge, frame, level);
    case EdgeShape::kBezier:
        return BezierCrossing(boundary, edge, frame, level);
    case EdgeShape::kStraight:
        break;
    }
    return Between(edge.start, edge.end, (level - edge.startLevel) / (edge.endLevel - edge.startLevel));
}

} // namespace geometry
