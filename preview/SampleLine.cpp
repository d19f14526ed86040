#include "preview/SampleLine.h"

#include "StyleConversion/encoding/IntegerConversion.h"

#include <numbers>

namespace preview {

SampleLine::Spot SampleLine::Stretch::At(double along) const {
    if (curvature == 0.0) {
        return {point + Point{std::cos(heading), std::sin(heading)} * along, heading};
    }
    const double turned = heading + along * curvature;
    const Point chord{std::sin(turned) - std::sin(heading), std::cos(heading) - std::cos(turned)};
    return {point + chord * (1 / curvature), turned};
}

void SampleLine::StraightTo(Point point) {
    const Point from = stretches_.empty() ? start_ : At(length_).point;
    const Point way = point - from;
    stretches_.push_back({length_, preview::Length(way), from, std::atan2(way.y, way.x), 0.0});
    length_ += stretches_.back().length;
}

void SampleLine::ArcTo(Point center, Point end) {
    const Point from = start_ - center;
    const Point to = end - center;
    double turn = std::atan2(from.y, from.x) - std::atan2(to.y, to.x);
    turn += turn < 0 ? 2 * std::numbers::pi : 0.0;
    const double radius = preview::Length(from);
    stretches_.push_back({length_, turn * radius, start_, std::atan2(-from.x, from.y), -1 / radius});
    length_ += stretches_.back().length;
}

SampleLine::Spot SampleLine::At(double distance) const {
    std::size_t i = 0;
    while (i + 1 < stretches_.size() && distance > stretches_[i + 1].start) {
        ++i;
    }
    const Stretch& stretch = stretches_[i];
    const double along = distance - stretch.start;
    const double inside = std::clamp(along, 0.0, stretch.length);
    Spot spot = stretch.At(inside);
    spot.point = spot.point + Point{std::cos(spot.heading), std::sin(spot.heading)} * (along - inside);
    return spot;
}

void SampleLine::AppendStretch(PathData& data, const Placement& placement, const Stretch& stretch,
                               double from, double to) {
    if (stretch.curvature == 0.0) {
        data.LineTo(placement(stretch.At(to).point));
        return;
    }
    constexpr double kLongestPiece = std::numbers::pi / 3;
    const int pieces =
        std::max(1, encoding::ToInt32(std::ceil(std::fabs((to - from) * stretch.curvature) / kLongestPiece)));
    const double step = (to - from) / pieces;
    const double handle = 4.0 / 3.0 * std::tan(step * stretch.curvature / 4) / stretch.curvature;
    for (int piece = 0; piece < pieces; ++piece) {
        const Spot start = stretch.At(from + piece * step);
        const Spot end = stretch.At(from + (piece + 1) * step);
        const auto along = [](const Spot& spot, double distance) {
            return spot.point + Point{std::cos(spot.heading), std::sin(spot.heading)} * distance;
        };
        data.CurveTo(placement(along(start, handle)), placement(along(end, -handle)), placement(end.point));
    }
}

void SampleLine::Append(PathData& data, const Placement& placement, double from, double to, bool move) const {
    if (move) {
        data.MoveTo(placement(At(from).point));
    }
    if (from == to) {
        data.LineTo(placement(At(to).point));
        return;
    }
    for (const Stretch& stretch : stretches_) {
        const double first = std::max(from - stretch.start, 0.0);
        const double last = std::min(to - stretch.start, stretch.length);
        if (first < last) {
            AppendStretch(data, placement, stretch, first, last);
        }
    }
}

} // namespace preview
