// Taking a B-spline apart into Bernstein form, and de Casteljau's rule.
#include "drawing/geometry/BezierChain.h"

#include "drawing/geometry/Limits.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace geometry {

namespace {

/// In place, the control points of the part before `fraction`.
void KeepBefore(Point* points, double* weights, std::size_t order, double fraction) {
    for (std::size_t round = 1; round < order; ++round) {
        for (std::size_t index = order - 1; index >= round; --index) {
            Blend(points, weights, index - 1, index, index, fraction);
        }
    }
}

/// In place, the control points of the part after `fraction`.
void KeepAfter(Point* points, double* weights, std::size_t order, double fraction) {
    for (std::size_t round = 1; round < order; ++round) {
        for (std::size_t index = 0; index + round < order; ++index) {
            Blend(points, weights, index, index + 1, index, fraction);
        }
    }
}

/// In place, from the B-spline control points of one span to Bernstein form. First all knots to the left of
/// the span are moved to its start a, then all to its right to its end b; each is de Boor's rule at a (at b),
/// of which one edge of the triangle is kept.
void SpanToBezier(const std::vector<double>& knots, std::size_t span, std::size_t degree, Point* points,
                  double* weights) {
    const double a = knots[span];
    const double b = knots[span + 1];
    for (std::size_t round = 1; round <= degree; ++round) {
        for (std::size_t index = 0; index + round <= degree; ++index) {
            const double low = knots[span - degree + index + round];
            const double high = knots[span + index + 1];
            Blend(points, weights, index, index + 1, index, (a - low) / (high - low));
        }
    }
    for (std::size_t round = 1; round <= degree; ++round) {
        for (std::size_t index = degree; index >= round; --index) {
            const double high = knots[span + index - round + 1];
            Blend(points, weights, index - 1, index, index, (b - a) / (high - a));
        }
    }
}

} // namespace

Status CheckPoints(const std::vector<Point>& points) {
    for (const Point& point : points) {
        if (!IsFinite(point)) {
            return Status::kNotFinite;
        }
        if (std::fabs(point.x) > kMaximumCoordinate || std::fabs(point.y) > kMaximumCoordinate) {
            return Status::kOutOfRange;
        }
    }
    return Status::kOk;
}

BezierChain DecomposeIntoBezier(const NurbsCurve& curve) {
    const auto degree = static_cast<std::size_t>(curve.degree);
    const bool rational = !curve.weights.empty();
    BezierChain chain;
    chain.degree = curve.degree;
    const std::size_t spans = curve.controlPoints.size() - degree; // or fewer, where knots are repeated
    chain.breaks.reserve(spans + 1);
    constexpr std::size_t kUsualDegree = 3;
    if (degree <= kUsualDegree) { // Beyond, the empty spans of a hostile curve would cost too much memory.
        chain.points.reserve(spans * (degree + 1));
    }
    chain.breaks.push_back(curve.knots[degree]);
    for (std::size_t span = degree; span < curve.controlPoints.size(); ++span) {
        if (!(curve.knots[span] < curve.knots[span + 1])) {
            continue;
        }
        const std::size_t first = chain.points.size();
        const auto from = static_cast<std::ptrdiff_t>(span - degree);
        const auto to = static_cast<std::ptrdiff_t>(span + 1);
        chain.points.insert(chain.points.end(), curve.controlPoints.begin() + from,
                            curve.controlPoints.begin() + to);
        if (rational) {
            chain.weights.insert(chain.weights.end(), curve.weights.begin() + from,
                                 curve.weights.begin() + to);
        }
        SpanToBezier(curve.knots, span, degree, chain.points.data() + first,
                     rational ? chain.weights.data() + first : nullptr);
        if (first > 0) {
            chain.points[first] = chain.points[first - 1];
        }
        chain.breaks.push_back(curve.knots[span + 1]);
    }
    return chain;
}

BezierStack::BezierStack(const BezierChain& chain)
    : chain_(&chain), order_(static_cast<std::size_t>(chain.degree) + 1) {}

void BezierStack::Grow() {
    ++count_;
    if (depths_.size() < count_) {
        constexpr std::size_t kUsualDepth = 8; // seldom more are needed
        const std::size_t room = std::max(kUsualDepth, 2 * count_);
        depths_.resize(room);
        points_.resize(room * order_);
        weights_.resize(IsRational(*chain_) ? room * order_ : 0);
    }
}

void BezierStack::Push(std::size_t piece, double from, double to) {
    const auto first = static_cast<std::ptrdiff_t>(piece * order_);
    Grow();
    std::copy_n(chain_->points.begin() + first, order_, TopPointData());
    if (IsRational(*chain_)) {
        std::copy_n(chain_->weights.begin() + first, order_, TopWeightData());
    }
    depths_[count_ - 1] = 0;
    if (to < 1.0) {
        KeepBefore(TopPointData(), TopWeightData(), order_, to);
    }
    if (from > 0.0) {
        KeepAfter(TopPointData(), TopWeightData(), order_, from / to);
    }
}

void BezierStack::HalveTop() {
    const int depth = TopDepth() + 1;
    depths_[count_ - 1] = depth;
    Grow();
    depths_[count_ - 1] = depth;
    // The lower copy becomes the second half while the upper one becomes the first.
    Point* const upperPoints = TopPointData();
    Point* const lowerPoints = upperPoints - order_;
    std::copy_n(lowerPoints, order_, upperPoints);
    double* const upperWeights = TopWeightData();
    double* lowerWeights = nullptr;
    if (upperWeights != nullptr) {
        lowerWeights = upperWeights - order_;
        std::copy_n(lowerWeights, order_, upperWeights);
    }
    for (std::size_t round = 1; round < order_; ++round) {
        for (std::size_t index = order_ - 1; index >= round; --index) {
            Blend(upperPoints, upperWeights, index - 1, index, index, 0.5);
        }
        const std::size_t kept = order_ - 1 - round;
        lowerPoints[kept] = upperPoints[order_ - 1];
        if (lowerWeights != nullptr) {
            lowerWeights[kept] = upperWeights[order_ - 1];
        }
    }
}

void BezierStack::Pop() {
    --count_;
}

void BezierStack::Clear() {
    count_ = 0;
}

std::span<const double> BezierStack::TopWeights() const {
    return IsRational(*chain_) ? std::span(weights_).subspan((count_ - 1) * order_, order_)
                               : std::span<const double>();
}

Point EvaluatePiece(const BezierChain& chain, std::size_t piece, double fraction) {
    const std::size_t order = static_cast<std::size_t>(chain.degree) + 1;
    return EvaluateBezier(std::span(chain.points).subspan(piece * order, order),
                          IsRational(chain) ? std::span(chain.weights).subspan(piece * order, order)
                                            : std::span<const double>(),
                          fraction);
}

Point EvaluateBezier(std::span<const Point> points, std::span<const double> weights, double fraction) {
    if (fraction <= 0.0) {
        return points.front();
    }
    if (fraction >= 1.0) {
        return points.back();
    }
    // Almost every curve is small enough for these; the others pay for the memory.
    constexpr std::size_t kSmall = 16;
    std::array<Point, kSmall> smallPoints;
    std::array<double, kSmall> smallWeights{};
    std::vector<Point> largePoints;
    std::vector<double> largeWeights;
    Point* pointData = smallPoints.data();
    double* weightData = weights.empty() ? nullptr : smallWeights.data();
    if (points.size() > kSmall) {
        largePoints.resize(points.size());
        pointData = largePoints.data();
        if (!weights.empty()) {
            largeWeights.resize(weights.size());
            weightData = largeWeights.data();
        }
    }
    std::copy(points.begin(), points.end(), pointData);
    std::copy(weights.begin(), weights.end(), weightData);
    KeepAfter(pointData, weightData, points.size(), fraction);
    return pointData[0];
}

} // namespace geometry
