// Whether a step along plain cubics keeps within a tolerance, from closed formulas unless it is close.
#pragma once

#include "drawing/geometry/BezierChain.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace geometry {

/// A second way beside the halving of pieces, which decides the same: with it, converting a block of splines
/// takes a fifth less time.
class QuickTrials {
public:
    /// `rounding`: the distance below which points of the chain cannot be told from rounding. For a chain
    /// that is rational or not cubic there are no answers.
    QuickTrials(const BezierChain& chain, double rounding);

    /// What is nowhere further from the chord than `near` is near, what is somewhere further than `far` is
    /// not; between the two there is no answer, and none where rounding could matter.
    void SetBounds(double near, double far);

    /// Whether the curve from position `from`, whose point is `start`, to position `to` stays near the
    /// segment between the points of both. Positions are counted in pieces: 2.25 is a quarter into the third.
    std::optional<bool> StaysNear(Point start, double from, double to) const;

private:
    /// constant + linear u + square u^2 + cube u^3, for u from 0 to 1.
    struct Cubic {
        Point constant;
        Point linear;
        Point square;
        Point cube;
    };
    /// The pieces from one position to another.
    struct Stretch {
        double from;
        double to;
        std::size_t first;
        std::size_t last;
    };

    template <class Use>
    bool ForEachPart(const Stretch& stretch, Use use) const;
    bool IsBeside(const Stretch& stretch, Point start, Vector along) const;

    std::vector<Cubic> pieces_;
    double rounding_;
    bool answers_ = false;
    double near_ = 0.0; ///< squared distances
    double far_ = 0.0;
};

} // namespace geometry
