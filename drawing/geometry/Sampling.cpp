// Sampling a curve within a chord tolerance: from each sample as far as the tolerance reaches.
#include "drawing/geometry/Sampling.h"

#include "drawing/geometry/BezierChain.h"
#include "drawing/geometry/Limits.h"
#include "drawing/geometry/QuickTrials.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace geometry {

namespace {

/// Along a curve positions are counted in pieces: 2.25 is a quarter into the third. That makes the search
/// independent of how the knots are spaced.
constexpr double kSmallestStep = 1e-13;

/// Of the tolerance: control points nearer than the first part prove a piece, a curve point further than the
/// second refutes it. Between the two a piece that is halved a few times is decided.
constexpr double kProved = 0.999;
constexpr double kRefuted = 0.97;

/// Halvings after which an undecided piece counts as refuted.
constexpr int kDeepestHalving = 40;

/// How often the longest step is narrowed down: to 1/16 of its length.
constexpr int kNarrowings = 4;

/// A kink is taken as the next sample when the curve goes past it by less than this part of the step.
constexpr double kKinkShare = 0.25;

/// A straight line between two points of the curve.
class Chord {
public:
    Chord(Point start, Point end) : start_(start), along_(end - start), squaredLength_(Dot(along_, along_)) {}

    double SquaredDistanceTo(Point point) const {
        const Vector across = point - start_;
        if (!(squaredLength_ > 0.0)) {
            return Dot(across, across);
        }
        const double fraction = std::clamp(Dot(across, along_) / squaredLength_, 0.0, 1.0);
        const Vector rest = across - fraction * along_;
        return Dot(rest, rest);
    }

private:
    Point start_;
    Vector along_;
    double squaredLength_;
};

/// The first control point that differs from `points[from]`, going up or down; that point itself if none
/// does.
Point NextDistinct(std::span<const Point> points, std::size_t from, bool up) {
    std::size_t index = from;
    while (points[index] == points[from] && (up ? index + 1 < points.size() : index > 0)) {
        index = up ? index + 1 : index - 1;
    }
    return points[index];
}

/// Whether the direction of travel changes at the joint before `piece`.
bool HasKink(const BezierChain& chain, std::size_t piece) {
    const std::size_t order = static_cast<std::size_t>(chain.degree) + 1;
    const std::span<const Point> points(chain.points);
    const std::span<const Point> before = points.subspan((piece - 1) * order, order);
    const std::span<const Point> after = points.subspan(piece * order, order);
    const Vector in = before.back() - NextDistinct(before, order - 1, false);
    const Vector out = NextDistinct(after, 0, true) - after.front();
    constexpr double kSameDirection = 1e-6;
    return std::fabs(Cross(in, out)) > kSameDirection * Length(in) * Length(out) || Dot(in, out) < 0.0;
}

/// The distance below which points of the chain cannot be told from rounding.
double RoundingOf(const BezierChain& chain) {
    double magnitude = 0.0;
    for (const Point& point : chain.points) {
        magnitude = std::max(magnitude, std::max(std::fabs(point.x), std::fabs(point.y)));
    }
    return 64.0 * std::numeric_limits<double>::epsilon() * magnitude;
}

/// Where a step along the curve begins.
struct CurveStart {
    double position = 0.0;
    Point point;
};

class Sampler {
public:
    explicit Sampler(const BezierChain& chain)
        : chain_(chain), stack_(chain), kinks_(PieceCount(chain), false), rounding_(RoundingOf(chain)),
          quick_(chain, rounding_) {
        for (std::size_t piece = 1; piece < PieceCount(chain); ++piece) {
            kinks_[piece] = HasKink(chain, piece);
        }
    }

    double Rounding() const { return rounding_; }
    double PositionOf(double parameter) const;
    CurveSample At(double position) const;
    /// False when more than `most` samples are needed; `reached` is then how far they went.
    bool Run(double start, double end, double tolerance, std::size_t most, std::vector<CurveSample>& samples,
             double& reached);

private:
    bool StaysWithin(const CurveStart& from, double to);
    bool StaysNear(const Chord& chord);
    double LongestStep(const CurveStart& from, double most, double guess);
    double MovedToKink(const CurveStart& from, double to);

    std::size_t PieceAt(double position) const {
        return std::min(static_cast<std::size_t>(position), PieceCount(chain_) - 1);
    }
    Point PointAt(double position) const {
        const std::size_t piece = PieceAt(position);
        return EvaluatePiece(chain_, piece, position - static_cast<double>(piece));
    }

    Point PieceStart(std::size_t piece) const {
        return chain_.points[piece * (static_cast<std::size_t>(chain_.degree) + 1)];
    }

    const BezierChain& chain_;
    BezierStack stack_;
    std::vector<bool> kinks_; ///< by piece: at its start
    double rounding_;         ///< of the coordinates
    double proved_ = 0.0;     ///< squared distances
    double refuted_ = 0.0;
    QuickTrials quick_;
};

double Sampler::PositionOf(double parameter) const {
    const auto after = std::upper_bound(chain_.breaks.begin(), chain_.breaks.end(), parameter);
    const auto piece = std::clamp<std::ptrdiff_t>(after - chain_.breaks.begin() - 1, 0,
                                                  static_cast<std::ptrdiff_t>(PieceCount(chain_)) - 1);
    const auto index = static_cast<std::size_t>(piece);
    const double start = chain_.breaks[index];
    return static_cast<double>(index) +
           std::clamp((parameter - start) / (chain_.breaks[index + 1] - start), 0.0, 1.0);
}

CurveSample Sampler::At(double position) const {
    const std::size_t piece = PieceAt(position);
    const double fraction = position - static_cast<double>(piece);
    const double start = chain_.breaks[piece];
    const double end = chain_.breaks[piece + 1];
    return {fraction < 1.0 ? start + fraction * (end - start) : end, EvaluatePiece(chain_, piece, fraction)};
}

/// Whether the curve between two positions stays within the tolerance of the chord. The distance to a segment
/// is a convex function, so a piece is nowhere further away than the furthest of its control points.
bool Sampler::StaysWithin(const CurveStart& from, double to) {
    if (const std::optional<bool> answer = quick_.StaysNear(from.point, from.position, to)) {
        return *answer;
    }
    stack_.Clear();
    const std::size_t first = PieceAt(from.position);
    if (const auto base = static_cast<double>(first); to <= base + 1.0) {
        // All within one piece: its part ends at the very point at which the chord does.
        stack_.Push(first, from.position - base, to - base);
        return StaysNear(Chord(from.point, stack_.TopPoints().back()));
    }
    const Chord chord(from.point, PointAt(to));
    // A joint of pieces that is too far away settles it.
    for (std::size_t piece = first + 1; static_cast<double>(piece) < to && piece < PieceCount(chain_);
         ++piece) {
        if (chord.SquaredDistanceTo(PieceStart(piece)) > proved_) {
            return false;
        }
    }
    for (std::size_t piece = first; static_cast<double>(piece) < to && piece < PieceCount(chain_); ++piece) {
        const auto base = static_cast<double>(piece);
        stack_.Push(piece, std::max(from.position - base, 0.0), std::min(to - base, 1.0));
        if (!StaysNear(chord)) {
            return false;
        }
    }
    return true;
}

/// The same of the pieces on the stack, which is empty after a yes.
bool Sampler::StaysNear(const Chord& chord) {
    while (!stack_.IsEmpty()) {
        const std::span<const Point> points = stack_.TopPoints();
        const double first = chord.SquaredDistanceTo(points.front());
        const double last = chord.SquaredDistanceTo(points.back());
        if (first > proved_ || last > proved_) {
            return false;
        }
        bool isProved = true;
        for (std::size_t index = 1; isProved && index + 1 < points.size(); ++index) {
            isProved = !(chord.SquaredDistanceTo(points[index]) > proved_);
        }
        if (isProved) {
            stack_.Pop();
        } else if (first > refuted_ || last > refuted_ || stack_.TopDepth() == kDeepestHalving) {
            return false;
        } else {
            stack_.HalveTop();
        }
    }
    return true;
}

/// The longest step from a position, at most `most`, that keeps within the tolerance, to kNarrowings
/// halvings.
double Sampler::LongestStep(const CurveStart& from, double most, double guess) {
    const double position = from.position;
    const double smallest = std::max(kSmallestStep, 4.0 * std::numeric_limits<double>::epsilon() * position);
    double good = std::min(guess, most);
    double bad = 0.0;
    if (StaysWithin(from, position + good)) {
        while (bad == 0.0) {
            if (good == most) {
                return most;
            }
            const double longer = std::min(2.0 * good, most);
            (StaysWithin(from, position + longer) ? good : bad) = longer;
        }
    } else {
        do {
            bad = good;
            good = 0.5 * bad;
            if (good < smallest) {
                return std::min(smallest, most);
            }
        } while (!StaysWithin(from, position + good));
    }
    for (int round = 0; round < kNarrowings; ++round) {
        const double middle = 0.5 * (good + bad);
        (StaysWithin(from, position + middle) ? good : bad) = middle;
    }
    return good;
}

/// The last kink between two positions where it lies close before the second, else the second.
double Sampler::MovedToKink(const CurveStart& from, double to) {
    for (std::size_t piece = PieceAt(to); static_cast<double>(piece) > from.position; --piece) {
        if (!kinks_[piece]) {
            continue;
        }
        const auto kink = static_cast<double>(piece);
        const Point point = PointAt(kink);
        const bool close = Distance(point, PointAt(to)) <= kKinkShare * Distance(from.point, point);
        return close && StaysWithin(from, kink) ? kink : to;
    }
    return to;
}

bool Sampler::Run(double start, double end, double tolerance, std::size_t most,
                  std::vector<CurveSample>& samples, double& reached) {
    proved_ = (kProved * tolerance) * (kProved * tolerance);
    refuted_ = (kRefuted * tolerance) * (kRefuted * tolerance);
    quick_.SetBounds(kRefuted * tolerance, kProved * tolerance);
    samples.clear();
    samples.push_back(At(start));
    double step = 1.0;
    reached = start;
    while (reached < end) {
        if (samples.size() == most) {
            return false;
        }
        const CurveStart from{reached, samples.back().point};
        step = LongestStep(from, end - reached, step);
        const double furthest = reached + step;
        reached = furthest < end ? MovedToKink(from, furthest) : end;
        samples.push_back(At(reached));
    }
    return true;
}

} // namespace

double SamplePoints(const NurbsCurve& curve, double start, double end, double tolerance,
                    std::vector<CurveSample>& samples) {
    samples.clear();
    const Interval interval = ParameterInterval(curve);
    if (std::isnan(start) || std::isnan(end) || start > end) {
        return tolerance;
    }
    const BezierChain chain = DecomposeIntoBezier(curve);
    Sampler sampler(chain);
    const double from = sampler.PositionOf(std::clamp(start, interval.start, interval.end));
    const double to = sampler.PositionOf(std::clamp(end, interval.start, interval.end));
    const double least = sampler.Rounding();
    double held = tolerance >= least ? tolerance : least;
    const std::size_t most = kSamplesPerCurve + kSamplesPerPiece * PieceCount(chain);
    double reached = from;
    while (!sampler.Run(from, to, held, most, samples, reached)) {
        // The number of samples goes with the root of the tolerance.
        const double needed = (to - from) / std::max(reached - from, kSmallestStep);
        held *= std::clamp(needed * needed, 4.0, 1e8);
    }
    return held;
}

} // namespace geometry
