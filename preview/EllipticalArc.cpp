#include "preview/EllipticalArc.h"

#include <numbers>

namespace preview {
namespace {

constexpr double kPi = std::numbers::pi;

double Radians(double degrees) {
    return degrees * (kPi / 180.0);
}

// An end point of the arc seen from the centre, on the circle that the ellipse becomes when each axis is
// divided by its radius.
struct UnitChord {
    Point half;   // half of the chord from the end point to the start point
    Point center; // of the circle, from the chord's middle
};

UnitChord SolveChord(Point half, bool centerOnTheLeft) {
    const double length = std::min(Length(half), 1.0);
    const double distance = std::sqrt(std::max(0.0, 1.0 - length * length));
    // The direction of travel is from start to end, -half; its left normal is (half.y, -half.x).
    const double factor = (centerOnTheLeft ? distance : -distance) / length;
    return {half, {half.y * factor, -half.x * factor}};
}

} // namespace

Point CenteredArc::At(double t) const {
    return center + Turned({radiusX * std::cos(t), radiusY * std::sin(t)}, cosine, sine);
}

Point CenteredArc::DirectionAt(double t) const {
    return Turned({-radiusX * std::sin(t), radiusY * std::cos(t)}, cosine, sine);
}

Box CenteredArc::Bounds() const {
    Box box;
    box.Include(At(start));
    box.Include(At(start + sweep));
    // Where the tangent is parallel to an axis: x' = 0 and y' = 0.
    const double extremeX = std::atan2(-radiusY * sine, radiusX * cosine);
    const double extremeY = std::atan2(radiusY * cosine, radiusX * sine);
    for (const double extreme : {extremeX, extremeX + kPi, extremeY, extremeY + kPi}) {
        double along = std::fmod(sweep < 0 ? start - extreme : extreme - start, 2 * kPi);
        along += along < 0 ? 2 * kPi : 0.0;
        if (along <= std::fabs(sweep)) {
            box.Include(At(extreme));
        }
    }
    return box;
}

std::optional<CenteredArc> CenterOf(Point from, const ArcShape& shape, Point to) {
    CenteredArc arc;
    arc.radiusX = std::fabs(shape.radiusX);
    arc.radiusY = std::fabs(shape.radiusY);
    const double angle = Radians(std::fmod(shape.rotation, 360.0));
    arc.cosine = std::cos(angle);
    arc.sine = std::sin(angle);
    const Point halfChord = Turned((from - to) * 0.5, arc.cosine, -arc.sine);
    Point half{halfChord.x / arc.radiusX, halfChord.y / arc.radiusY};
    const double length = Length(half);
    if (!std::isfinite(length) || length == 0.0 || !std::isfinite(angle)) {
        return std::nullopt;
    }
    if (length > 1.0) {
        arc.radiusX *= length;
        arc.radiusY *= length;
        half = half * (1.0 / length);
    }
    // A short arc has its centre on the side that it turns to: left when counter-clockwise.
    const UnitChord chord = SolveChord(half, shape.clockwise == shape.largeArc);
    arc.center = (from + to) * 0.5 +
                 Turned({chord.center.x * arc.radiusX, chord.center.y * arc.radiusY}, arc.cosine, arc.sine);
    arc.start = std::atan2(half.y - chord.center.y, half.x - chord.center.x);
    const double end = std::atan2(-half.y - chord.center.y, -half.x - chord.center.x);
    arc.sweep = end - arc.start;
    if (shape.clockwise && arc.sweep > 0) {
        arc.sweep -= 2 * kPi;
    } else if (!shape.clockwise && arc.sweep < 0) {
        arc.sweep += 2 * kPi;
    }
    const bool finite = std::isfinite(arc.center.x) && std::isfinite(arc.center.y) &&
                        std::isfinite(arc.radiusX) && std::isfinite(arc.radiusY);
    return finite ? std::optional(arc) : std::nullopt;
}

} // namespace preview
