// Hatch evaluation: a sweep over the lines of each family, from the lowest up.
#include "drawing/geometry/Hatch.h"

#include "drawing/geometry/HatchDashes.h"
#include "drawing/geometry/HatchFrame.h"
#include "drawing/geometry/HatchNumbers.h"
#include "drawing/geometry/Limits.h"
#include "drawing/geometry/MonotoneEdges.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace geometry {

namespace {

/// A monotone edge and the family lines that cross it, first <= last.
struct SweptEdge {
    std::int64_t first = 0;
    std::int64_t last = 0;
    std::size_t edge = 0;
};

/// Where a line meets the boundary. Distances along lines count from a point of the boundary, not from the
/// line's origin: that may be so far away that it would swallow them, and only dashes care for it.
struct Crossing {
    double distance = 0.0;
    Point point;
};

class FamilyHatcher {
public:
    FamilyHatcher(const HatchFrame& frame, const std::vector<double>& dashes, double magnitude,
                  std::size_t most, std::vector<HatchLine>& lines)
        : frame_(frame), isDashed_(!dashes.empty()), cycle_(MakeDashCycle(dashes)), magnitude_(magnitude),
          rounding_(RoundingAt(magnitude + std::fabs(Dot(frame.normal, frame.base)))), most_(most),
          lines_(lines) {}

    Status Run(const std::vector<HatchLoop>& loops);

private:
    Status SortEdges();
    Status HatchOneLine(double line, const std::vector<std::size_t>& crossed);
    void PairCrossings();
    Status DrawBetween(const Crossing& start, const Crossing& end, Point origin);
    Status AddLine(Point start, Point end);
    Crossing MakeCrossing(std::size_t edge, double line, Point origin) const;
    static Point WithoutNoise(Point point, double noise);
    static double RoundingAt(double magnitude) {
        return 16.0 * std::numeric_limits<double>::epsilon() * magnitude;
    }

    const HatchFrame& frame_;
    bool isDashed_;
    DashCycle cycle_;
    double magnitude_; ///< of the boundary's coordinates
    double rounding_;  ///< coordinates and distances smaller than this are noise
    Point reference_;  ///< where distances along lines count from
    std::size_t most_; ///< lines that the hatch may have
    std::vector<HatchLine>& lines_;
    MonotoneBoundary boundary_;
    std::vector<SweptEdge> swept_;
    std::vector<Crossing> crossings_;
    std::vector<Stretch> stretches_;
};

/// Fills swept_, ordered by first line. Lines count the points of their own level as below themselves: an
/// edge between levels a < b is crossed by the lines a <= k < b.
Status FamilyHatcher::SortEdges() {
    double total = 0.0;
    bool isFar = false;
    for (std::size_t index = 0; index < boundary_.edges.size(); ++index) {
        const MonotoneEdge& edge = boundary_.edges[index];
        const double first = std::ceil(std::min(edge.startLevel, edge.endLevel));
        const double end = std::ceil(std::max(edge.startLevel, edge.endLevel));
        const double count = end - first;
        isFar = isFar || !(std::fabs(first) <= kMaximumRepeats && std::fabs(end) <= kMaximumRepeats);
        if (count == 0.0) {
            continue;
        }
        // Two infinite levels differ by what is not a number; they too are too many lines.
        total = count > 0.0 ? total + count : std::numeric_limits<double>::infinity();
        if (!isFar) {
            swept_.push_back({static_cast<std::int64_t>(first), static_cast<std::int64_t>(end) - 1, index});
        }
    }
    if (total > static_cast<double>(most_) * kHatchCrossingsPerLine) {
        return Status::kTooManyLines;
    }
    if (isFar) {
        return Status::kOutOfRange;
    }
    std::sort(swept_.begin(), swept_.end(), [](const SweptEdge& a, const SweptEdge& b) {
        return a.first != b.first ? a.first < b.first : a.edge < b.edge;
    });
    return Status::kOk;
}

Status FamilyHatcher::Run(const std::vector<HatchLoop>& loops) {
    boundary_ = MakeMonotoneBoundary(loops, frame_);
    if (const Status status = SortEdges(); status != Status::kOk) {
        return status;
    }
    if (!swept_.empty()) {
        reference_ = boundary_.edges[swept_.front().edge].start;
    }
    std::vector<std::size_t> active; // positions in swept_
    std::vector<std::size_t> crossed;
    std::size_t next = 0;
    std::int64_t line = 0;
    while (next < swept_.size() || !active.empty()) {
        if (active.empty()) {
            line = swept_[next].first;
        }
        for (; next < swept_.size() && swept_[next].first == line; ++next) {
            active.push_back(next);
        }
        crossed.clear();
        for (const std::size_t position : active) {
            crossed.push_back(swept_[position].edge);
        }
        if (const Status status = HatchOneLine(static_cast<double>(line), crossed); status != Status::kOk) {
            return status;
        }
        std::erase_if(active, [&](std::size_t position) { return swept_[position].last == line; });
        ++line;
    }
    return Status::kOk;
}

Crossing FamilyHatcher::MakeCrossing(std::size_t edge, double line, Point origin) const {
    Point point = CrossingAt(boundary_, boundary_.edges[edge], frame_, line);
    // The line knows its own coordinate better than the boundary does.
    if (frame_.direction.y == 0.0) {
        point.y = origin.y;
    } else if (frame_.direction.x == 0.0) {
        point.x = origin.x;
    }
    return {Dot(frame_.direction, point - reference_), point};
}

/// Takes the crossings in pairs, drops pairs that only touch, and joins pairs that meet.
void FamilyHatcher::PairCrossings() {
    std::sort(crossings_.begin(), crossings_.end(),
              [](const Crossing& a, const Crossing& b) { return a.distance < b.distance; });
    std::size_t kept = 0;
    for (std::size_t index = 0; index + 1 < crossings_.size(); index += 2) {
        const Crossing start = crossings_[index];
        const Crossing end = crossings_[index + 1];
        if (end.distance - start.distance <= rounding_) {
            continue;
        }
        if (kept > 0 && start.distance - crossings_[kept - 1].distance <= rounding_) {
            crossings_[kept - 1] = end;
            continue;
        }
        crossings_[kept++] = start;
        crossings_[kept++] = end;
    }
    crossings_.resize(kept);
}

Status FamilyHatcher::HatchOneLine(double line, const std::vector<std::size_t>& crossed) {
    const Point origin = LineOrigin(frame_, line);
    crossings_.clear();
    for (const std::size_t edge : crossed) {
        crossings_.push_back(MakeCrossing(edge, line, origin));
    }
    PairCrossings();
    for (std::size_t index = 0; index < crossings_.size(); index += 2) {
        const Status status = DrawBetween(crossings_[index], crossings_[index + 1], origin);
        if (status != Status::kOk) {
            return status;
        }
    }
    return Status::kOk;
}

Status FamilyHatcher::DrawBetween(const Crossing& start, const Crossing& end, Point origin) {
    if (!isDashed_) {
        return AddLine(WithoutNoise(start.point, rounding_), WithoutNoise(end.point, rounding_));
    }
    const double shift = Dot(frame_.direction, reference_ - origin);
    const double from = start.distance + shift;
    const double to = end.distance + shift;
    const double rounding = RoundingAt(magnitude_ + std::fabs(origin.x) + std::fabs(origin.y));
    stretches_.clear();
    const DashResult result = LayDashes(cycle_, from, to, rounding, most_ - lines_.size(), stretches_);
    if (result != DashResult::kOk) {
        return result == DashResult::kTooMany ? Status::kTooManyLines : Status::kOutOfRange;
    }
    const auto at = [&](double distance) {
        if (distance == from || distance == to) {
            return WithoutNoise(distance == from ? start.point : end.point, rounding_);
        }
        return WithoutNoise(origin + distance * frame_.direction, rounding);
    };
    for (const Stretch& stretch : stretches_) {
        if (const Status status = AddLine(at(stretch.start), at(stretch.end)); status != Status::kOk) {
            return status;
        }
    }
    return Status::kOk;
}

Point FamilyHatcher::WithoutNoise(Point point, double noise) {
    return {std::fabs(point.x) <= noise ? 0.0 : point.x, std::fabs(point.y) <= noise ? 0.0 : point.y};
}

Status FamilyHatcher::AddLine(Point start, Point end) {
    if (lines_.size() == most_) {
        return Status::kTooManyLines;
    }
    lines_.push_back({start, end});
    return Status::kOk;
}

} // namespace

Status EvaluateHatch(const std::vector<HatchLoop>& loops, const std::vector<HatchFamily>& families,
                     std::size_t most, std::vector<HatchLine>& lines) {
    lines.clear();
    double magnitude = 0.0;
    Status status = CheckHatchNumbers(loops, families, magnitude);
    for (std::size_t index = 0; index < families.size() && status == Status::kOk; ++index) {
        HatchFrame frame;
        status = MakeHatchFrame(families[index], frame);
        if (status == Status::kOk) {
            status = FamilyHatcher(frame, families[index].dashes, magnitude, most, lines).Run(loops);
        }
    }
    if (status != Status::kOk) {
        lines.clear();
    }
    return status;
}

} // namespace geometry
