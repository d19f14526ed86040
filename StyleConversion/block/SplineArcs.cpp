#include "StyleConversion/block/SplineArcs.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace block {
namespace {

// A smooth curve leaves the arc through both its ends and its middle by a cube of their distance, a chord by
// a square of it: a few times fewer samples than chords would take are enough to lay arcs through them.
constexpr double kSampling = 4.0;
// What an arc may be off by at the samples, and more by between them.
constexpr double kAtSamples = 0.7;
constexpr double kBetweenSamples = 0.6;
// Two samples between the ends of an arc tell how the curve runs beside it.
constexpr std::size_t kFewestIntervals = 3;
// Tangent of a quarter of the sweep, below a right angle.
constexpr double kSharpest = 0.4;
constexpr double kParameterTolerance = 1e-12;

/// Points of the curve, and where on it they are.
struct Samples {
    std::vector<OxGePoint2d> points;
    std::vector<double> parameters;
};

Samples SamplesOf(OxGeNurbCurve2d& curve, double from, double to, double tolerance) {
    host::Points2d points;
    host::Doubles parameters;
    curve.getSamplePoints(from, to, tolerance, points, parameters);
    Samples samples;
    const int count = std::min(host::LengthOf(points), host::LengthOf(parameters));
    for (int i = 0; i < count; ++i) {
        samples.points.push_back(host::ElementAt(points, i));
        samples.parameters.push_back(host::ElementAt(parameters, i));
    }
    return samples;
}

// The bulge of the arc from one point through another to a third: its two chords turn by half of its sweep.
double BulgeThrough(const OxGePoint2d& from, const OxGePoint2d& middle, const OxGePoint2d& to) {
    const double x1 = middle.x - from.x;
    const double y1 = middle.y - from.y;
    const double x2 = to.x - middle.x;
    const double y2 = to.y - middle.y;
    return std::tan(0.5 * std::atan2(x1 * y2 - y1 * x2, x1 * x2 + y1 * y2));
}

/// An arc over its chord.
class Arc {
public:
    Arc(const OxGePoint2d& from, const OxGePoint2d& to, double bulge)
        : from_(from), chord_(std::hypot(to.x - from.x, to.y - from.y)), bulge_(bulge),
          alongX_((to.x - from.x) / chord_), alongY_((to.y - from.y) / chord_) {}

    double Curvature() const { return 4.0 * bulge_ / (chord_ * (1.0 + bulge_ * bulge_)); }

    /// Of a point that is near to the arc.
    struct Place {
        double along; // of the chord, from its start
        double off;   // the distance from the centre less the radius
    };
    /// Without the digits that flat arcs would lose in it: of the circle through both ends,
    /// u² - cu + v² - 2qv = 0, divided by 2r.
    Place Of(const OxGePoint2d& point) const {
        const double x = point.x - from_.x;
        const double y = point.y - from_.y;
        const double u = x * alongX_ + y * alongY_;
        const double v = y * alongX_ - x * alongY_;
        const double square = bulge_ * bulge_;
        const double bent = 2.0 * bulge_ * (u * (u - chord_) + v * v) / chord_;
        return {u, (bent - v * (1.0 - square)) / (1.0 + square)};
    }

private:
    OxGePoint2d from_;
    double chord_;
    double bulge_;
    double alongX_; // the chord's direction
    double alongY_;
};

/// Lays arcs through samples, each over as many as it can.
class ArcsThroughSamples {
public:
    ArcsThroughSamples(OxGeNurbCurve2d& curve, Samples samples, double tolerance)
        : curve_(curve), samples_(std::move(samples)), tolerance_(tolerance) {
        Measure();
    }

    std::vector<CurveVertex> All() {
        const std::size_t last = samples_.points.size() - 1;
        for (std::size_t from = 0; from < last;) {
            double bulge = 0.0;
            const std::size_t intervals = Longest(from, bulge);
            if (intervals == 0) {
                AppendChords(from);
                ++from;
            } else {
                vertices_.push_back({samples_.points[from], bulge});
                from += intervals;
            }
        }
        vertices_.push_back({samples_.points[last], 0.0});
        return std::move(vertices_);
    }

private:
    // From what the arc before it spans, or less, to more: a smooth curve changes slowly.
    std::size_t Longest(std::size_t from, double& bulge) {
        const std::size_t most = samples_.points.size() - 1 - from;
        std::size_t fitting = 0;
        std::size_t wanted = std::min(std::max(before_, kFewestIntervals), most);
        while (wanted >= kFewestIntervals && Fits(from, wanted, bulge)) {
            fitting = wanted;
            wanted = std::min(wanted + std::max<std::size_t>(wanted / 4, 1), most);
            if (wanted == fitting) {
                break;
            }
        }
        if (fitting == 0) {
            for (wanted = wanted * 3 / 4; wanted >= kFewestIntervals && fitting == 0;
                 wanted = wanted * 3 / 4) {
                fitting = Fits(from, wanted, bulge) ? wanted : 0;
            }
        }
        before_ = fitting;
        return fitting;
    }

    bool Fits(std::size_t from, std::size_t intervals, double& bulge) const {
        const std::vector<OxGePoint2d>& points = samples_.points;
        const OxGePoint2d& start = points[from];
        const OxGePoint2d& end = points[from + intervals];
        const double through = 0.5 * (BulgeThrough(start, points[from + intervals / 2], end) +
                                      BulgeThrough(start, points[from + (intervals + 1) / 2], end));
        if (!(std::fabs(through) <= kSharpest) || !(std::hypot(end.x - start.x, end.y - start.y) > 0.0)) {
            return false;
        }
        const Arc arc(start, end, through);
        double along = 0.0;
        for (std::size_t i = from; i < from + intervals; ++i) {
            const Arc::Place place = arc.Of(points[i + 1]);
            if (!(place.along > along) || std::fabs(place.off) > kAtSamples * tolerance_ ||
                !IsBentLike(arc, i)) {
                return false;
            }
            along = place.along;
        }
        bulge = through;
        return true;
    }

    // Whether the curve between two samples is bent as the arc is: as much as at both of them.
    bool IsBentLike(const Arc& arc, std::size_t from) const {
        const double length = lengths_[from];
        const double most = 8.0 * kBetweenSamples * tolerance_ / (length * length);
        return std::fabs(curvatures_[from] - arc.Curvature()) <= most &&
               std::fabs(curvatures_[from + 1] - arc.Curvature()) <= most;
    }

    // Of the circle through each sample and its neighbours; at the ends that of the neighbour.
    void Measure() {
        const std::vector<OxGePoint2d>& points = samples_.points;
        const std::size_t last = points.size() - 1;
        lengths_.resize(last);
        curvatures_.resize(last + 1);
        for (std::size_t i = 0; i < last; ++i) {
            lengths_[i] = std::hypot(points[i + 1].x - points[i].x, points[i + 1].y - points[i].y);
        }
        for (std::size_t i = 1; i < last; ++i) {
            const double x = points[i + 1].x - points[i - 1].x;
            const double y = points[i + 1].y - points[i - 1].y;
            const double cross = (points[i].x - points[i - 1].x) * (points[i + 1].y - points[i].y) -
                                 (points[i].y - points[i - 1].y) * (points[i + 1].x - points[i].x);
            curvatures_[i] = 2.0 * cross / (lengths_[i - 1] * lengths_[i] * std::hypot(x, y));
        }
        if (last > 1) {
            curvatures_.front() = curvatures_[1];
            curvatures_.back() = curvatures_[last - 1];
        }
    }

    // Where too few samples are alike: chords as near to the curve as arcs are elsewhere.
    void AppendChords(std::size_t from) {
        const Samples finer =
            SamplesOf(curve_, samples_.parameters[from], samples_.parameters[from + 1], tolerance_);
        vertices_.push_back({samples_.points[from], 0.0});
        for (std::size_t i = 1; i + 1 < finer.points.size(); ++i) {
            vertices_.push_back({finer.points[i], 0.0});
        }
    }

    OxGeNurbCurve2d& curve_;
    Samples samples_;
    double tolerance_;
    std::vector<double> lengths_;    // from each sample to the next
    std::vector<double> curvatures_; // at each
    std::size_t before_ = 0;         // intervals that the arc before spans
    std::vector<CurveVertex> vertices_;
};

} // namespace

std::vector<CurveVertex> FollowCurve(OxGeNurbCurve2d& curve, double tolerance) {
    const host::ParameterRange range = host::ParametersOf(curve, kParameterTolerance);
    Samples samples = SamplesOf(curve, range.lower, range.upper, kSampling * tolerance);
    if (samples.points.empty()) {
        return {};
    }
    return ArcsThroughSamples(curve, std::move(samples), tolerance).All();
}

} // namespace block
