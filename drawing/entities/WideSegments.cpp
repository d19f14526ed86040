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

// The edges of a band that widens along an arc are joined of arcs that turn by as much.
constexpr double kStepSweep = 2.0 * std::numbers::pi / 128.0;
// Neighbours whose directions have a smaller cosine than this less 1 meet without a mitre.
constexpr double kSharpest = 0.1;
// Points that are nearer to each other than this share of a length are one.
constexpr double kSame = 1e-9;

OxGeVector2d Left(const OxGeVector2d& direction) {
    return {-direction.y, direction.x};
}

/// The line that a segment follows. Places along it are parts of it, from 0 to 1.
struct Course {
    OxGePoint2d from;
    OxGePoint2d to;
    double length = 0.0; // of the chord; 0: there is none
    OxGeVector2d along;  // from one end to the other, of length 1
    double sweep = 0.0;  // of an arc, counter-clockwise; else 0
    OxGePoint2d center;

    bool IsEmpty() const { return length == 0.0; }
    OxGePoint2d PointAt(double part) const {
        if (part == 0.0 || part == 1.0) {
            return part == 0.0 ? from : to;
        }
        if (sweep == 0.0) {
            return {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
        }
        const OxGeVector2d turned =
            PlaneMap::Turn(sweep * part).OfVector(OxGeVector2d{from.x - center.x, from.y - center.y});
        return {center.x + turned.x, center.y + turned.y};
    }
    /// Of length 1.
    OxGeVector2d DirectionAt(double part) const {
        return PlaneMap::Turn(sweep * (part - 0.5)).OfVector(along);
    }
};

Course CourseOf(const BulgeVertex& from, const OxGePoint2d& to) {
    Course course;
    const OxGeVector2d chord = {to.x - from.point.x, to.y - from.point.y};
    const double length = std::hypot(chord.x, chord.y);
    if (!(length > 0.0) || !std::isfinite(length) || !std::isfinite(from.bulge)) {
        return course;
    }
    const double toCenter = from.bulge == 0.0 ? 0.0 : (1.0 - from.bulge * from.bulge) / (4.0 * from.bulge);
    course.from = from.point;
    course.to = to;
    course.length = length;
    course.along = {chord.x / length, chord.y / length};
    course.sweep = 4.0 * std::atan(from.bulge);
    course.center = {(from.point.x + to.x) * 0.5 - chord.y * toCenter,
                     (from.point.y + to.y) * 0.5 + chord.x * toCenter};
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
        const Ends ends = {StartEdge(index, course.DirectionAt(0.0), 0.5 * width.start),
                           EndEdge(index, course.DirectionAt(1.0), 0.5 * width.end)};
        SegmentOutline outline = Edge(course, width, ends, 1.0);
        SegmentOutline right = Edge(course, width, ends, -1.0);
        AppendReversed(outline, right);
        return outline;
    }

    /// From the line to the corners on its left.
    struct Ends {
        OxGeVector2d start;
        OxGeVector2d end;
    };

    // The edge on the left where `side` is 1, on the right where it is -1: from corner to corner, with the
    // part between them that is beside the line.
    static SegmentOutline Edge(const Course& course, const SegmentWidth& width, const Ends& ends,
                               double side) {
        const auto at = [&](double part) {
            const double half = 0.5 * (width.start + (width.end - width.start) * part) * side;
            const OxGePoint2d point = course.PointAt(part);
            const OxGeVector2d left = Left(course.DirectionAt(part));
            return OxGePoint2d{point.x + left.x * half, point.y + left.y * half};
        };
        SegmentOutline edge;
        const OxGePoint2d start = {course.from.x + ends.start.x * side, course.from.y + ends.start.y * side};
        const OxGePoint2d end = {course.to.x + ends.end.x * side, course.to.y + ends.end.y * side};
        edge.push_back({start, 0.0});
        if (course.sweep != 0.0) {
            const double first = PartBeside(course, start, 0.0, width.start);
            const double last = PartBeside(course, end, 1.0, width.end);
            if (first < last) {
                AppendArcs(edge, at, first, last, Steps(course, width));
            }
        }
        if (Distance(edge.back().point, end) > kSame * course.length) {
            edge.push_back({end, 0.0});
        } else {
            edge.back() = {end, 0.0};
        }
        return edge;
    }

    // Where beside the line a corner at its start or end stands: a mitre may cut away a piece of the edge.
    // One that lengthens it does so along the direction in which the line ends.
    static double PartBeside(const Course& course, const OxGePoint2d& corner, double part, double width) {
        const OxGePoint2d end = course.PointAt(part);
        const OxGeVector2d direction = course.DirectionAt(part);
        const double beyond = (corner.x - end.x) * direction.x + (corner.y - end.y) * direction.y;
        const double inward = part == 0.0 ? beyond : -beyond;
        const double radius = Distance(corner, course.center);
        if (!(inward > kSame * width) || !(radius > inward)) {
            return part;
        }
        const double cut = std::asin(inward / radius) / std::fabs(course.sweep);
        return part == 0.0 ? cut : 1.0 - cut;
    }

    static int Steps(const Course& course, const SegmentWidth& width) {
        return width.start == width.end ? 1 : std::max(1, ToCount(std::fabs(course.sweep) / kStepSweep));
    }
    static int ToCount(double steps) { return static_cast<int>(std::ceil(steps)); }

    template <class At>
    static void AppendArcs(SegmentOutline& edge, const At& at, double first, double last, int steps) {
        OxGePoint2d from = at(first);
        for (int i = 0; i < steps; ++i) {
            const double start = first + (last - first) * i / steps;
            const double end = first + (last - first) * (i + 1) / steps;
            const OxGePoint2d to = at(end);
            const double bulge = geometry::BulgeThrough(from, at((start + end) * 0.5), to);
            if (i == 0 && Distance(edge.back().point, from) <= kSame * Distance(from, to)) {
                edge.back().bulge = bulge;
            } else {
                edge.push_back({from, bulge});
            }
            from = to;
        }
        edge.push_back({from, 0.0});
    }

    static void AppendReversed(SegmentOutline& outline, const SegmentOutline& edge) {
        for (std::size_t i = edge.size(); i > 0; --i) {
            outline.push_back({edge[i - 1].point, i > 1 ? -edge[i - 2].bulge : 0.0});
        }
    }
    static double Distance(const OxGePoint2d& a, const OxGePoint2d& b) {
        return std::hypot(a.x - b.x, a.y - b.y);
    }

    OxGeVector2d StartEdge(std::size_t index, const OxGeVector2d& direction, double half) const {
        const Course* const before = Neighbour(index, false);
        const bool has = before != nullptr && !before->IsEmpty();
        const std::size_t previous = (index + courses_.size() - 1) % courses_.size();
        return EdgeAt(direction, half, courses_[index], before, has ? before->DirectionAt(1.0) : direction,
                      0.5 * WidthOf(previous).end);
    }
    OxGeVector2d EndEdge(std::size_t index, const OxGeVector2d& direction, double half) const {
        const Course* const next = Neighbour(index, true);
        const bool has = next != nullptr && !next->IsEmpty();
        return EdgeAt(direction, half, courses_[index], next, has ? next->DirectionAt(0.0) : direction,
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
