// A curve taken apart into its polynomial pieces, and the cutting of such pieces.
#pragma once

#include "drawing/geometry/NurbsCurve.h"

#include <cstddef>
#include <span>
#include <vector>

namespace geometry {

/// The pieces of a curve between its knots, each in Bernstein form. Piece i runs over [breaks[i], breaks[i +
/// 1]]; its degree + 1 control points start at points[i * (degree + 1)], its weights, where there are any,
/// likewise. Every piece starts at the very point (to the bit) at which the one before it ends.
struct BezierChain {
    int degree = 0;
    std::vector<double> breaks;
    std::vector<Point> points;
    std::vector<double> weights; ///< empty: not rational
};

inline std::size_t PieceCount(const BezierChain& chain) {
    return chain.breaks.size() - 1;
}

inline bool IsRational(const BezierChain& chain) {
    return !chain.weights.empty();
}

/// kNotFinite or kOutOfRange where a coordinate is so.
Status CheckPoints(const std::vector<Point>& points);

/// Takes the curve apart at its knots; empty spans between repeated knots give no piece.
BezierChain DecomposeIntoBezier(const NurbsCurve& curve);

/// points[to] becomes the point at `fraction` between points[first] and points[second], in the sense of
/// rational curves where `weights` is not null (weights[to] is then set too). Works on points, not on their
/// products with weights: nothing overflows, and equal points stay exactly equal.
inline void Blend(Point* points, double* weights, std::size_t first, std::size_t second, std::size_t to,
                  double fraction) {
    if (weights != nullptr) {
        const double far = fraction * weights[second];
        const double sum = (1.0 - fraction) * weights[first] + far;
        fraction = far / sum;
        weights[to] = sum;
    }
    points[to] = Between(points[first], points[second], fraction);
}

/// A stack of pieces of one chain that are being halved: the scratch memory of searches along a curve.
class BezierStack {
public:
    explicit BezierStack(const BezierChain& chain);

    /// Pushes the part of a chain's piece between two fractions (0 to 1) of its own interval, at depth 0.
    void Push(std::size_t piece, double from, double to);
    /// Replaces the top by its two halves, the first one on top, both one deeper.
    void HalveTop();
    void Pop();
    void Clear();

    bool IsEmpty() const { return count_ == 0; }
    int TopDepth() const { return depths_[count_ - 1]; }
    std::span<const Point> TopPoints() const {
        return std::span(points_).subspan((count_ - 1) * order_, order_);
    }
    /// Empty when the chain is not rational.
    std::span<const double> TopWeights() const;

private:
    /// One more place on the stack, filled by the caller.
    void Grow();
    Point* TopPointData() { return points_.data() + (count_ - 1) * order_; }
    double* TopWeightData() {
        return IsRational(*chain_) ? weights_.data() + (count_ - 1) * order_ : nullptr;
    }

    const BezierChain* chain_;
    std::size_t order_;
    std::size_t count_ = 0;
    // Of the pieces on the stack, and behind them what is left of others.
    std::vector<Point> points_;
    std::vector<double> weights_;
    std::vector<int> depths_;
};

/// The point of a chain's piece at a fraction (0 to 1) of its own interval.
Point EvaluatePiece(const BezierChain& chain, std::size_t piece, double fraction);

/// The point at `fraction` of a piece in Bernstein form; `weights` is empty for one that is not rational.
Point EvaluateBezier(std::span<const Point> points, std::span<const double> weights, double fraction);

} // namespace geometry
