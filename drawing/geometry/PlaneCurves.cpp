// Straight segments and arcs of the plane.
#include "OxDb/OxGeCurve2d.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double kTwoPi = 2.0 * std::numbers::pi;
constexpr double kClosedAngleTolerance = 1e-9; // radians
constexpr double kMaximumPieces = 1e6; // of one sampled arc; beyond it the tolerance is below rounding

void AppendSample(const OxGePoint2d& point, double parameter, OxGePoint2dArray& points,
                  OxGeDoubleArray& parameters) {
    points.append(point);
    parameters.append(parameter);
}

// How many equal parts of `angle` radians of an arc keep the chords within `tolerance`: the sagitta of one is
// radius (1 - cos(part / 2)). For an ellipse the major radius bounds it.
double PieceCount(double angle, double radius, double tolerance) {
    const double cosine = std::clamp(1.0 - tolerance / radius, -1.0, 1.0);
    const double part = 2.0 * std::acos(cosine);
    const double count = part > 0.0 ? std::ceil(std::abs(angle) / part) : kMaximumPieces;
    return std::clamp(count, 1.0, kMaximumPieces);
}

} // namespace

OxGeTol OxGeContext::gTol;

bool OxGeLineSeg2d::isClosed(const OxGeTol& tolerance) const {
    return start_.isEqualTo(end_, tolerance);
}

OxGeBoundBlock2d OxGeLineSeg2d::boundBlock() const {
    return {{std::min(start_.x, end_.x), std::min(start_.y, end_.y)},
            {std::max(start_.x, end_.x), std::max(start_.y, end_.y)}};
}

void OxGeLineSeg2d::getInterval(OxGeInterval& interval) const {
    interval.set(0.0, 1.0);
}

void OxGeLineSeg2d::getSamplePoints(double fromParameter, double toParameter, double /*tolerance*/,
                                    OxGePoint2dArray& points, OxGeDoubleArray& parameters) const {
    points.removeAll();
    parameters.removeAll();
    for (const double parameter : {fromParameter, toParameter}) {
        AppendSample({start_.x + (end_.x - start_.x) * parameter, start_.y + (end_.y - start_.y) * parameter},
                     parameter, points, parameters);
    }
}

OxGeEllipArc2d::OxGeEllipArc2d(const OxGePoint2d& center, const OxGeVector2d& majorAxis, double radiusRatio,
                               double startAngle, double endAngle, bool clockwise)
    : center_(center), majorAxis_(majorAxis), radiusRatio_(radiusRatio), startAngle_(startAngle),
      endAngle_(endAngle), clockwise_(clockwise) {}

OxGeVector2d OxGeEllipArc2d::minorAxis() const {
    const double ratio = clockwise_ ? -radiusRatio_ : radiusRatio_;
    return {-majorAxis_.y * ratio, majorAxis_.x * ratio};
}

OxGePoint2d OxGeEllipArc2d::startPoint() const {
    return pointAt(startAngle_);
}

OxGePoint2d OxGeEllipArc2d::endPoint() const {
    return pointAt(endAngle_);
}

OxGePoint2d OxGeEllipArc2d::pointAt(double angle) const {
    const OxGeVector2d minor = minorAxis();
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    return {center_.x + majorAxis_.x * cosine + minor.x * sine,
            center_.y + majorAxis_.y * cosine + minor.y * sine};
}

bool OxGeEllipArc2d::isClosed(const OxGeTol& /*tolerance*/) const {
    return std::abs(std::abs(endAngle_ - startAngle_) - kTwoPi) <= kClosedAngleTolerance;
}

OxGeBoundBlock2d OxGeEllipArc2d::boundBlock() const {
    const OxGePoint2d start = startPoint();
    const OxGePoint2d end = endPoint();
    OxGePoint2d minimum = {std::min(start.x, end.x), std::min(start.y, end.y)};
    OxGePoint2d maximum = {std::max(start.x, end.x), std::max(start.y, end.y)};
    const OxGeVector2d minor = minorAxis();
    // Extreme x and y lie where the derivative is zero, at two opposite angles each.
    const double xAngle = std::atan2(minor.x, majorAxis_.x);
    const double yAngle = std::atan2(minor.y, majorAxis_.y);
    const double lower = std::min(startAngle_, endAngle_ < startAngle_ ? startAngle_ : endAngle_);
    const double upper = endAngle_ < startAngle_ ? endAngle_ + kTwoPi : endAngle_;
    for (const double extreme : {xAngle, yAngle, xAngle + std::numbers::pi, yAngle + std::numbers::pi}) {
        const double first = extreme + std::ceil((lower - extreme) / kTwoPi) * kTwoPi;
        if (first <= upper) {
            const OxGePoint2d point = pointAt(extreme);
            minimum = {std::min(minimum.x, point.x), std::min(minimum.y, point.y)};
            maximum = {std::max(maximum.x, point.x), std::max(maximum.y, point.y)};
        }
    }
    return {minimum, maximum};
}

void OxGeEllipArc2d::getInterval(OxGeInterval& interval) const {
    interval.set(startAngle_, endAngle_ < startAngle_ ? endAngle_ + kTwoPi : endAngle_);
}

void OxGeEllipArc2d::getSamplePoints(double fromParameter, double toParameter, double tolerance,
                                     OxGePoint2dArray& points, OxGeDoubleArray& parameters) const {
    points.removeAll();
    parameters.removeAll();
    const double radius = std::max(majorRadius(), std::abs(minorRadius()));
    const double angle = toParameter - fromParameter;
    const double pieces = radius > 0.0 ? PieceCount(angle, radius, tolerance) : 1.0;
    for (int piece = 0; piece < pieces; ++piece) {
        const double parameter = fromParameter + angle * (piece / pieces);
        AppendSample(pointAt(parameter), parameter, points, parameters);
    }
    AppendSample(pointAt(toParameter), toParameter, points, parameters);
}

OxGeCircArc2d::OxGeCircArc2d(const OxGePoint2d& center, double radius, double startAngle, double endAngle,
                             bool clockwise)
    : center_(center), radius_(radius), startAngle_(startAngle), endAngle_(endAngle), clockwise_(clockwise) {}

namespace {

OxGeEllipArc2d EllipseOf(const OxGeCircArc2d& arc) {
    return {arc.center(), {arc.radius(), 0.0}, 1.0, arc.startAng(), arc.endAng(), arc.isClockWise()};
}

} // namespace

OxGePoint2d OxGeCircArc2d::startPoint() const {
    return pointAt(startAngle_);
}

OxGePoint2d OxGeCircArc2d::endPoint() const {
    return pointAt(endAngle_);
}

OxGePoint2d OxGeCircArc2d::pointAt(double angle) const {
    const double sine = clockwise_ ? -std::sin(angle) : std::sin(angle);
    return {center_.x + radius_ * std::cos(angle), center_.y + radius_ * sine};
}

bool OxGeCircArc2d::isClosed(const OxGeTol& tolerance) const {
    return EllipseOf(*this).isClosed(tolerance);
}

OxGeBoundBlock2d OxGeCircArc2d::boundBlock() const {
    return EllipseOf(*this).boundBlock();
}

void OxGeCircArc2d::getInterval(OxGeInterval& interval) const {
    EllipseOf(*this).getInterval(interval);
}

void OxGeCircArc2d::getSamplePoints(double fromParameter, double toParameter, double tolerance,
                                    OxGePoint2dArray& points, OxGeDoubleArray& parameters) const {
    EllipseOf(*this).getSamplePoints(fromParameter, toParameter, tolerance, points, parameters);
}
