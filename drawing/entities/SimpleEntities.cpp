// The entities whose geometry is a formula.
#include "drawing/entities/SimpleEntities.h"

#include <cmath>
#include <numbers>

namespace drawing {
namespace {

constexpr double kTwoPi = 2.0 * std::numbers::pi;
constexpr double kClosedAngleTolerance = 1e-9; // radians

} // namespace

Point::Point(Core& core, const EntityProperties& properties, const OxGePoint3d& position)
    : ResidentEntity(core, properties), position_(position) {}

Line::Line(Core& core, const EntityProperties& properties, const OxGePoint3d& start, const OxGePoint3d& end)
    : ResidentCurve(core, properties), start_(start), end_(end) {}

double Line::EndParameter() const {
    return OxGeVector3d{end_.x - start_.x, end_.y - start_.y, end_.z - start_.z}.length();
}

OxGePoint3d Line::PointAt(double parameter) const {
    const double length = EndParameter();
    const double part = length > 0.0 ? parameter / length : 0.0;
    if (part == 1.0) {
        return end_;
    }
    return {start_.x + (end_.x - start_.x) * part, start_.y + (end_.y - start_.y) * part,
            start_.z + (end_.z - start_.z) * part};
}

Arc::Arc(Core& core, const EntityProperties& properties, const ArcData& data)
    : ResidentCurve(core, properties), center_(data.center), radius_(data.radius),
      startAngle_(data.startAngle), endAngle_(data.endAngle) {
    const OxGeVector3d usual = ArcData().normal;
    if (data.normal.x != usual.x || data.normal.y != usual.y || data.normal.z != usual.z) {
        normal_ = std::make_unique<const OxGeVector3d>(data.normal);
    }
}

OxGePoint3d Arc::PointAt(double parameter) const {
    const double cosine = normal().z < 0.0 ? -std::cos(parameter) : std::cos(parameter);
    return {center_.x + radius_ * cosine, center_.y + radius_ * std::sin(parameter), center_.z};
}

Circle::Circle(Core& core, const EntityProperties& properties, const OxGePoint3d& center, double radius)
    : ResidentCurve(core, properties), center_(center), radius_(radius) {}

double Circle::EndParameter() const {
    return kTwoPi;
}

OxGePoint3d Circle::PointAt(double parameter) const {
    return {center_.x + radius_ * std::cos(parameter), center_.y + radius_ * std::sin(parameter), center_.z};
}

Ellipse::Ellipse(Core& core, const EntityProperties& properties, const EllipseData& data)
    : ResidentCurve(core, properties), data_(data) {}

OxGeVector3d Ellipse::minorAxis() const {
    return {-data_.majorAxis.y * data_.radiusRatio, data_.majorAxis.x * data_.radiusRatio, 0.0};
}

bool Ellipse::isClosed() const {
    return std::abs(std::abs(data_.endAngle - data_.startAngle) - kTwoPi) <= kClosedAngleTolerance;
}

OxGePoint3d Ellipse::PointAt(double parameter) const {
    const double cosine = std::cos(parameter);
    const double sine = std::sin(parameter);
    const OxGeVector3d minor = minorAxis();
    return {data_.center.x + data_.majorAxis.x * cosine + minor.x * sine,
            data_.center.y + data_.majorAxis.y * cosine + minor.y * sine,
            data_.center.z + data_.majorAxis.z * cosine + minor.z * sine};
}

OtherEntity::OtherEntity(Core& core, const EntityProperties& properties, std::wstring className,
                         OtherShape shape)
    : ResidentEntity(core, properties), className_(std::move(className)),
      class_(className_.c_str(), OxDbEntity::desc()), shape_(std::move(shape)) {}

OtherEntity::~OtherEntity() = default;

} // namespace drawing
