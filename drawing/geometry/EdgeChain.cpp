// Edges of a hatch loop in the order in which they bound it.
#include "drawing/geometry/EdgeChain.h"

#include "drawing/geometry/NurbCurveData.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace geometry {
namespace {

struct FindEnds {
    EdgeEnds operator()(const std::shared_ptr<const OxGeNurbCurve2d>& spline) const {
        if (spline->data() == nullptr) {
            return {};
        }
        const NurbsCurve& curve = spline->data()->curve;
        const Interval interval = ParameterInterval(curve);
        return {Evaluate(curve, interval.start), Evaluate(curve, interval.end)};
    }
    template <class Curve>
    EdgeEnds operator()(const Curve& curve) const {
        return {curve.startPoint(), curve.endPoint()};
    }
};

struct Reverse {
    HatchEdge operator()(const OxGeLineSeg2d& line) const {
        return OxGeLineSeg2d(line.endPoint(), line.startPoint());
    }
    // The angles of an arc that runs the other way count the other way.
    HatchEdge operator()(const OxGeCircArc2d& arc) const {
        return OxGeCircArc2d(arc.center(), arc.radius(), -arc.endAng(), -arc.startAng(), !arc.isClockWise());
    }
    HatchEdge operator()(const OxGeEllipArc2d& arc) const {
        return OxGeEllipArc2d(arc.center(), arc.majorAxis(), arc.radiusRatio(), -arc.endAng(),
                              -arc.startAng(), !arc.isClockWise());
    }
    HatchEdge operator()(const std::shared_ptr<const OxGeNurbCurve2d>& spline) const {
        if (spline->data() == nullptr) {
            return spline;
        }
        const NurbsCurve& curve = spline->data()->curve;
        std::vector<double> knots(curve.knots.rbegin(), curve.knots.rend());
        std::transform(knots.begin(), knots.end(), knots.begin(), [](double knot) { return -knot; });
        OxGePoint2dArray points;
        OxGeDoubleArray weights;
        std::for_each(curve.controlPoints.rbegin(), curve.controlPoints.rend(),
                      [&](const Point& point) { points.append(point); });
        std::for_each(curve.weights.rbegin(), curve.weights.rend(),
                      [&](double weight) { weights.append(weight); });
        const OxGeKnotVector knotVector(static_cast<int>(knots.size()), knots.data());
        return curve.weights.empty()
                   ? std::make_shared<const OxGeNurbCurve2d>(curve.degree, knotVector, points)
                   : std::make_shared<const OxGeNurbCurve2d>(curve.degree, knotVector, points, weights);
    }
};

/// The ends of edges, found by place: those in neighbouring cells of a narrow grid meet.
class EndFinder {
public:
    EndFinder(const std::vector<EdgeEnds>& ends, Point origin, double cellSize)
        : origin_(origin), cellSize_(cellSize), isUsed_(ends.size(), false) {
        for (std::size_t edge = 0; edge < ends.size(); ++edge) {
            cells_[CellOf(ends[edge].start)].ends.push_back({edge, false});
            cells_[CellOf(ends[edge].end)].ends.push_back({edge, true});
        }
    }

    struct Found {
        std::size_t edge;
        bool isTurned; ///< it is its end that meets
    };

    void Use(std::size_t edge) { isUsed_[edge] = true; }
    bool IsUsed(std::size_t edge) const { return isUsed_[edge]; }

    /// The first edge that is not used and has an end at `point`; its start counts before its end.
    std::optional<Found> Find(Point point) {
        const auto [column, row] = CellOf(point);
        std::optional<Found> best;
        for (std::int64_t x = column - 1; x <= column + 1; ++x) {
            for (std::int64_t y = row - 1; y <= row + 1; ++y) {
                const auto place = cells_.find({x, y});
                if (place == cells_.end()) {
                    continue;
                }
                Cell& cell = place->second;
                while (cell.first < cell.ends.size() && isUsed_[cell.ends[cell.first].edge]) {
                    ++cell.first; // for good, so that all searches together stay short
                }
                if (cell.first < cell.ends.size() && (!best || cell.ends[cell.first].edge < best->edge)) {
                    best = cell.ends[cell.first];
                }
            }
        }
        return best;
    }

private:
    struct Cell {
        std::vector<Found> ends; ///< in the order of the edges
        std::size_t first = 0;   ///< all before it are used
    };

    std::pair<std::int64_t, std::int64_t> CellOf(Point point) const {
        // The grid covers the loop in some millions of cells each way.
        return {static_cast<std::int64_t>((point.x - origin_.x) / cellSize_),
                static_cast<std::int64_t>((point.y - origin_.y) / cellSize_)};
    }

    Point origin_;
    double cellSize_;
    std::vector<bool> isUsed_;
    std::map<std::pair<std::int64_t, std::int64_t>, Cell> cells_;
};

// The same edges in order, for a loop whose ends meet within `tolerance`.
std::vector<HatchEdge> Chained(const std::vector<HatchEdge>& edges, const std::vector<EdgeEnds>& ends,
                               Point origin, double tolerance) {
    EndFinder finder(ends, origin, tolerance);
    std::vector<HatchEdge> chained;
    chained.reserve(edges.size());
    for (std::size_t first = 0; first < edges.size(); ++first) {
        std::optional<EndFinder::Found> next;
        if (!finder.IsUsed(first)) {
            next = EndFinder::Found{first, false};
        }
        while (next) {
            const auto [edge, isTurned] = *next;
            finder.Use(edge);
            chained.push_back(isTurned ? Reversed(edges[edge]) : edges[edge]);
            next = finder.Find(isTurned ? ends[edge].start : ends[edge].end);
        }
    }
    return chained;
}

} // namespace

EdgeEnds EndsOf(const HatchEdge& edge) {
    return std::visit(FindEnds(), edge);
}

HatchEdge Reversed(const HatchEdge& edge) {
    return std::visit(Reverse(), edge);
}

void ChainEdges(std::vector<HatchEdge>& edges) {
    if (edges.size() < 2) {
        return;
    }
    std::vector<EdgeEnds> ends;
    ends.reserve(edges.size());
    Point least = EndsOf(edges.front()).start;
    Point most = least;
    for (const HatchEdge& edge : edges) {
        ends.push_back(EndsOf(edge));
        for (const Point& point : {ends.back().start, ends.back().end}) {
            if (!IsFinite(point)) {
                return; // what has no place has no order
            }
            least = {std::min(least.x, point.x), std::min(least.y, point.y)};
            most = {std::max(most.x, point.x), std::max(most.y, point.y)};
        }
    }
    constexpr double kMeet = 1e-6;
    const double tolerance = kMeet * std::max(most.x - least.x, most.y - least.y);
    if (!(tolerance > 0.0) || !std::isfinite(tolerance)) {
        return;
    }
    const auto meets = [&](const EdgeEnds& before, const EdgeEnds& after) {
        return Distance(before.end, after.start) <= tolerance;
    };
    if (std::adjacent_find(ends.begin(), ends.end(), std::not_fn(meets)) != ends.end()) {
        edges = Chained(edges, ends, least, tolerance);
    }
}

} // namespace geometry
