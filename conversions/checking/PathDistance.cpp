#include "conversions/checking/PathDistance.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace conversions {
namespace {

using preview::Point;
using PathLine = PathLines::Line;

double DistanceFrom(const PathLine& line, const Point& point) {
    const Point along = line.to - line.from;
    const Point offset = point - line.from;
    const double square = along.x * along.x + along.y * along.y;
    const double t =
        square > 0.0 ? std::clamp((offset.x * along.x + offset.y * along.y) / square, 0.0, 1.0) : 0.0;
    return preview::Length(offset - along * t);
}

Point PointOn(const PathLine& line, double t) {
    return line.from + (line.to - line.from) * t;
}

// Asks for the distances of points that follow one another, and so are mostly nearest to the same line.
class NearestLine {
public:
    explicit NearestLine(const std::vector<PathLine>& lines) : lines_(lines) {}

    // No more than `enough` where a line is as near as that.
    double DistanceOf(const Point& point, double enough) {
        double nearest = HUGE_VAL;
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            const std::size_t at = start_ + i < lines_.size() ? start_ + i : start_ + i - lines_.size();
            nearest = std::min(nearest, DistanceFrom(lines_[at], point));
            if (nearest <= enough) {
                start_ = at;
                return nearest;
            }
        }
        return nearest;
    }

private:
    const std::vector<PathLine>& lines_;
    std::size_t start_ = 0;
};

} // namespace

PathLines::PathLines(const std::vector<const preview::PathPart*>& paths, As as) : closes_(as == As::kFills) {
    for (const preview::PathPart* const path : paths) {
        if (as == As::kFills ? path->fill.has_value() : path->line.has_value()) {
            Append(path->outline);
        }
    }
}

void PathLines::Append(const preview::Outline& outline) {
    constexpr int kChords = 8;
    preview::ForEachPiece(
        outline,
        [&](Point from, Point to, bool startsHere) {
            if (startsHere) {
                Begin(from);
            }
            lines_.push_back({from, to});
        },
        [&](Point from, Point control, Point secondControl, Point to, bool startsHere) {
            if (startsHere) {
                Begin(from);
            }
            Point last = from;
            for (int i = 1; i <= kChords; ++i) {
                const double t = static_cast<double>(i) / kChords;
                const double u = 1.0 - t;
                const Point next = from * (u * u * u) + control * (3.0 * u * u * t) +
                                   secondControl * (3.0 * u * t * t) + to * (t * t * t);
                lines_.push_back({last, next});
                last = next;
            }
        });
    Close();
}

void PathLines::Begin(Point start) {
    Close();
    start_ = start;
}

void PathLines::Close() {
    if (closes_ && start_ && !lines_.empty() && !(lines_.back().to == *start_)) {
        lines_.push_back({lines_.back().to, *start_});
    }
    start_.reset();
}

double FarthestFrom(const PathLines& others, const PathLines& lines, double known) {
    constexpr std::size_t kPoints = 64;
    constexpr std::size_t kMostComparisons = 250000; // before only kPoints are asked for
    double total = 0.0;
    for (const PathLine& line : lines.Lines()) {
        total += preview::Length(line.to - line.from);
    }
    const double step = total / static_cast<double>(kPoints);
    if (!(step > 0.0) || !std::isfinite(step)) {
        return known;
    }
    const bool takesEach = lines.Lines().size() <= kMostComparisons / others.Lines().size();
    NearestLine nearest(others.Lines());
    std::size_t asked = 0;
    double next = 0.5 * step;
    double before = 0.0;
    double farthest = known;
    const auto look = [&](const Point& point) {
        farthest = std::max(farthest, nearest.DistanceOf(point, farthest));
    };
    for (const PathLine& line : lines.Lines()) {
        const double length = preview::Length(line.to - line.from);
        for (int i = 0; takesEach && i <= 2; ++i) {
            look(PointOn(line, 0.5 * i));
        }
        while (length > 0.0 && next <= before + length) {
            look(PointOn(line, (next - before) / length));
            ++asked;
            next = (static_cast<double>(asked) + 0.5) * step;
        }
        before += length;
    }
    return farthest;
}

} // namespace conversions
