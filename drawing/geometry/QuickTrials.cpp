#include "drawing/geometry/QuickTrials.h"

#include <algorithm>
#include <cmath>

namespace geometry {

namespace {

constexpr std::size_t kCubicDegree = 3;

/// Answers keep away from the bounds by this share of a squared distance, and are given only for tolerances
/// and chords so many times the rounding of the coordinates that it does not come near that. Between the two
/// tolerances no product below leaves the range of doubles.
constexpr double kMargin = 0.001;
constexpr double kToleranceOfRounding = 1e6;
constexpr double kSmallestTolerance = 1e-50;
constexpr double kLargestTolerance = 1e50;

/// A cubic of numbers.
struct Polynomial {
    double constant;
    double linear;
    double square;
    double cube;

    double At(double u) const { return constant + u * (linear + u * (square + u * cube)); }
    double SlopeAt(double u) const { return linear + u * (2.0 * square + u * (3.0 * cube)); }
};

/// The square of the polynomial where it is furthest from zero between two extremes, or between an end of the
/// range and an extreme; not below its squares at ends with an extreme beyond them.
double LargestSquareAtExtremes(const Polynomial& polynomial, double begin, double end) {
    const auto& [constant, linear, square, cube] = polynomial;
    // Both roots of the slope without cancellation. What is not a number comes from extremes that are not
    // there, and max() passes it over.
    const double root = std::sqrt(square * square - 3.0 * linear * cube);
    const double sum = -(square + std::copysign(root, square));
    const double one = polynomial.At(std::clamp(sum / (3.0 * cube), begin, end));
    const double other = polynomial.At(std::clamp(linear / sum, begin, end));
    return std::max(std::max(0.0, one * one), other * other);
}

} // namespace

QuickTrials::QuickTrials(const BezierChain& chain, double rounding) : rounding_(rounding) {
    if (static_cast<std::size_t>(chain.degree) != kCubicDegree || IsRational(chain)) {
        return;
    }
    pieces_.reserve(PieceCount(chain));
    for (std::size_t first = 0; first < chain.points.size(); first += kCubicDegree + 1) {
        const Point* const points = chain.points.data() + first;
        const Vector leg = points[1] - points[0];
        const Vector nextLeg = points[2] - points[1];
        pieces_.push_back(
            {points[0], 3.0 * leg, 3.0 * (nextLeg - leg), points[3] - points[0] - 3.0 * nextLeg});
    }
}

void QuickTrials::SetBounds(double near, double far) {
    near_ = (1.0 - kMargin) * (near * near);
    far_ = (1.0 + kMargin) * (far * far);
    answers_ = !pieces_.empty() && near > kToleranceOfRounding * rounding_ && near > kSmallestTolerance &&
               far < kLargestTolerance;
}

/// Shows each piece, and where the stretch enters and leaves it, as long as `use` says yes.
template <class Use>
bool QuickTrials::ForEachPart(const Stretch& stretch, Use use) const {
    for (std::size_t piece = stretch.first; piece <= stretch.last; ++piece) {
        const auto base = static_cast<double>(piece);
        if (!use(pieces_[piece], std::max(stretch.from - base, 0.0), std::min(stretch.to - base, 1.0),
                 piece == stretch.last)) {
            return false;
        }
    }
    return true;
}

std::optional<bool> QuickTrials::StaysNear(Point start, double from, double to) const {
    if (!answers_) {
        return std::nullopt;
    }
    Stretch stretch{from, to, std::min(static_cast<std::size_t>(from), pieces_.size() - 1), 0};
    stretch.last = stretch.first;
    while (static_cast<double>(stretch.last + 1) < to && stretch.last + 1 < pieces_.size()) {
        ++stretch.last;
    }
    const Cubic& cubic = pieces_[stretch.last];
    const double u = to - static_cast<double>(stretch.last);
    const Vector along = cubic.constant + u * (cubic.linear + u * (cubic.square + u * cubic.cube)) - start;
    const double squaredLength = Dot(along, along);
    if (!(squaredLength > near_)) {
        return std::nullopt;
    }
    // Distances from the whole line, which are no larger than those from the segment; all times its length.
    double furthest = 0.0;
    const double farSquare = far_ * squaredLength;
    const auto isNotFar = [&](const Cubic& part, double begin, double end, bool isLast) {
        const Polynomial across{Cross(along, part.constant - start), Cross(along, part.linear),
                                Cross(along, part.square), Cross(along, part.cube)};
        const double middle = across.At(0.5 * (begin + end)); // often enough, and quicker than extremes
        if (middle * middle > farSquare) {
            return false;
        }
        furthest = std::max(furthest, LargestSquareAtExtremes(across, begin, end));
        if (!isLast) {
            const double joint = across.At(1.0);
            furthest = std::max(furthest, joint * joint);
        }
        return furthest <= farSquare;
    };
    if (!ForEachPart(stretch, isNotFar)) {
        return false;
    }
    if (furthest <= near_ * squaredLength && IsBeside(stretch, start, along)) {
        return true;
    }
    return std::nullopt;
}

/// Whether no point of the stretch lies before or behind the chord: certain where its control points do not.
bool QuickTrials::IsBeside(const Stretch& stretch, Point start, Vector along) const {
    const double squaredLength = Dot(along, along);
    const auto isBeside = [=](double advance) { return advance >= 0.0 && advance <= squaredLength; };
    return ForEachPart(stretch, [&](const Cubic& part, double begin, double end, bool isLast) {
        const Polynomial advance{Dot(along, part.constant - start), Dot(along, part.linear),
                                 Dot(along, part.square), Dot(along, part.cube)};
        const double third = (end - begin) / 3.0;
        return isBeside(advance.At(begin) + third * advance.SlopeAt(begin)) &&
               isBeside(advance.At(end) - third * advance.SlopeAt(end)) &&
               (isLast || isBeside(advance.At(1.0)));
    });
}

} // namespace geometry
