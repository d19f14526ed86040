// Polylines with a width: the areas that their segments cover.
#include "drawing/entities/WideSegments.h"

#include "drawing/entities/PlaneMap.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace drawing {
namespace {

using geometry::BulgeVertex;

constexpr double kChordSweep = 2.0 * std::numbers::pi / 128.0;
// Neighbours whose directions have a smaller cosine than this less 1 meet without a mitre.
constexpr double kSharpest = 0.1;

OxGeVector2d Left(const OxGeVector2d& direction) {
    return {-direction.y, direction.x};
}

/// A segment by the points along it, and the directions in which it starts and ends, of length 1.
struct Course {
    std::vector<OxGePoint2d> points;
    std::vector<OxGeVector2d> directions; // at each point
    double length = 0.0;                  // of the chord
    bool IsEmpty() const { return points.empty(); }
};

Course CourseOf(const BulgeVertex& from, const OxGePoint2d& to) {
    Course course;
    const OxGeVector2d chord = {to.x - from.point.x, to.y - from.point.y};
    course.length = std::hypot(chord.x, chord.y);
    if (!(course.length > 0.0) || !std::isfinite(course.length)) {
        return course;
    }
    const OxGeVector2d along = {chord.x / course.length, chord.y / course.length};
    const double sweep = 4.0 * std::atan(from.bulge);
    const int count = std::max(1, static_cast<int>(std::ceil(std::fabs(sweep) / kChordSweep)));
    const double toCenter = from.bulge == 0.0 ? 0.0 : (1.0 - from.bulge * from.bulge) / (4.0 * from.bulge);
    const OxGePoint2d center = {(from.point.x + to.x) * 0.5 - chord.y * toCenter,
                                (from.point.y + to.y) * 0.5 + chord.x * toCenter};
    const OxGeVector2d radius = {from.point.x - center.x, from.point.y - center.y};
    for (int i = 0; i <= count; ++i) {
        const double part = static_cast<double>(i) / count;
        const OxGeVector2d turned = PlaneMap::Turn(sweep * part).OfVector(radius);
        course.points.push_back(i == 0       ? from.point
                                : i == count ? to
                                             : OxGePoint2d{center.x + turned.x, center.y + turned.y});
        course.directions.push_back(PlaneMap::Turn(sweep * (part - 0.5)).OfVector(along));
    }
    return course;
}

/// From the line to its left edge where a segment meets its neighbour; `half` of the width on both sides.
OxGeVector2d EdgeAt(const OxGeVector2d& direction, double half, const Course& own, const Course* other,
                    const OxGeVector2d& otherDirection, double otherHalf) {
    const OxGeVector2d straight = {Left(direction).x * half, Left(direction).y * half};
    if (other == nullptr || other->IsEmpty() || half != otherHalf) {
        return straight;
    }
    const double turn = 1.0 + direction.x * otherDirection.x + direction.y * otherDirection.y;
    if (turn < kSharpest) {
        return straight;
    }
    const OxGeVector2d sum = {direction.x + otherDirection.x, direction.y + otherDirection.y};
    const OxGeVector2d mitre = {Left(sum).x * half / turn, Left(sum).y * half / turn};
    // One that reaches farther back than the segments would turn their areas over.
    const double back = std::fabs(mitre.x * direction.x + mitre.y * direction.y);
    return back <= std::min(own.length, other->length) ? mitre : straight;
}

class Outlines {
public:
    Outlines(const std::vector<BulgeVertex>& vertices, const std::vector<SegmentWidth>& widths, bool closed)
        : widths_(widths), closed_(closed) {
        const std::size_t count = closed || vertices.empty() ? vertices.size() : vertices.size() - 1;
        for (std::size_t i = 0; i < count; ++i) {
            courses_.push_back(CourseOf(vertices[i], vertices[(i + 1) % vertices.size()].point));
        }
    }

    std::vector<SegmentOutline> All() const {
        std::vector<SegmentOutline> all;
        for (std::size_t i = 0; i < courses_.size(); ++i) {
            all.push_back(Outline(i));
        }
        return all;
    }

private:
    const Course* Neighbour(std::size_t index, bool isNext) const {
        const std::size_t count = courses_.size();
        const bool isAtEnd = isNext ? index + 1 == count : index == 0;
        return isAtEnd && (!closed_ || count < 2) ? nullptr
                                                  : &courses_[(index + (isNext ? 1 : count - 1)) % count];
    }
    SegmentWidth WidthOf(std::size_t index) const {
        return index < widths_.size() ? widths_[index] : SegmentWidth();
    }

    SegmentOutline Outline(std::size_t index) const {
        const Course& course = courses_[index];
        const SegmentWidth width = WidthOf(index);
        if (course.IsEmpty() || !(width.start > 0.0 || width.end > 0.0)) {
            return {};
        }
        const std::size_t last = course.points.size() - 1;
        SegmentOutline left;
        SegmentOutline right;
        for (std::size_t i = 0; i <= last; ++i) {
            const double part = static_cast<double>(i) / static_cast<double>(last);
            const double half = 0.5 * (width.start + (width.end - width.start) * part);
            const OxGeVector2d direction = course.directions[i];
            const OxGeVector2d edge = i == 0 ? StartEdge(index, direction, half)
                                      : i == last
                                          ? EndEdge(index, direction, half)
                                          : OxGeVector2d{Left(direction).x * half, Left(direction).y * half};
            left.push_back({course.points[i].x + edge.x, course.points[i].y + edge.y});
            right.push_back({course.points[i].x - edge.x, course.points[i].y - edge.y});
        }
        left.insert(left.end(), right.rbegin(), right.rend());
        return left;
    }
    OxGeVector2d StartEdge(std::size_t index, const OxGeVector2d& direction, double half) const {
        const Course* const before = Neighbour(index, false);
        const bool has = before != nullptr && !before->IsEmpty();
        const std::size_t previous = (index + courses_.size() - 1) % courses_.size();
        return EdgeAt(direction, half, courses_[index], before, has ? before->directions.back() : direction,
                      0.5 * WidthOf(previous).end);
    }
    OxGeVector2d EndEdge(std::size_t index, const OxGeVector2d& direction, double half) const {
        const Course* const next = Neighbour(index, true);
        const bool has = next != nullptr && !next->IsEmpty();
        return EdgeAt(direction, half, courses_[index], next, has ? next->directions.front() : direction,
                      0.5 * WidthOf((index + 1) % courses_.size()).start);
    }

    const std::vector<SegmentWidth>& widths_;
    bool closed_;
    std::vector<Course> courses_;
};

} // namespace

std::vector<SegmentOutline> OutlinesOf(const std::vector<BulgeVertex>& vertices,
                                       const std::vector<SegmentWidth>& widths, bool closed) {
    return Outlines(vertices, widths, closed).All();
}

} // namespace drawing
