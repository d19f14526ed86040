// Points, lines, arcs, circles, ellipses, and entities that nothing is known of.
#pragma once

#include "OxDb/OxDbCurves.h"
#include "drawing/database/Resident.h"
#include "drawing/entities/OtherShape.h"

#include <memory>
#include <string>

namespace drawing {

// None of the constructors checks its numbers. Lengths are drawing units, angles radians.

/// A point.
class OXDB_API Point : public ResidentEntity<OxDbPoint> {
public:
    Point(Core& core, const EntityProperties& properties, const OxGePoint3d& position);
    OxGePoint3d position() const override { return position_; }

private:
    OxGePoint3d position_;
};

/// A straight line; its parameter is the distance from its start.
class OXDB_API Line : public ResidentCurve<OxDbLine> {
public:
    Line(Core& core, const EntityProperties& properties, const OxGePoint3d& start, const OxGePoint3d& end);
    OxGePoint3d startPoint() const override { return start_; }
    OxGePoint3d endPoint() const override { return end_; }
    bool isClosed() const override { return false; }

protected:
    double StartParameter() const override { return 0.0; }
    double EndParameter() const override;
    OxGePoint3d PointAt(double parameter) const override;

private:
    OxGePoint3d start_;
    OxGePoint3d end_;
};

/// What an arc is made of.
struct ArcData {
    OxGePoint3d center;
    double radius = 1.0;
    double startAngle = 0.0; // radians, as the curve's parameters give them
    double endAngle = 0.0;
    OxGeVector3d normal{0.0, 0.0, 1.0};
};

/// The point at parameter t is center + radius (cos t, sin t), with cos t negated when the normal's z is
/// negative.
class OXDB_API Arc : public ResidentCurve<OxDbArc> {
public:
    Arc(Core& core, const EntityProperties& properties, const ArcData& data);
    OxGePoint3d center() const override { return center_; }
    double radius() const override { return radius_; }
    OxGeVector3d normal() const override { return normal_ ? *normal_ : ArcData().normal; }
    bool isClosed() const override { return false; }

    /// What it was made with.
    ArcData Data() const { return {center_, radius_, startAngle_, endAngle_, normal()}; }

protected:
    double StartParameter() const override { return startAngle_; }
    double EndParameter() const override { return endAngle_; }
    OxGePoint3d PointAt(double parameter) const override;

private:
    OxGePoint3d center_;
    double radius_;
    double startAngle_;
    double endAngle_;
    std::unique_ptr<const OxGeVector3d> normal_; // of few: none is (0, 0, 1)
};

/// A circle; its parameter runs from 0 to 2π.
class OXDB_API Circle : public ResidentCurve<OxDbCircle> {
public:
    Circle(Core& core, const EntityProperties& properties, const OxGePoint3d& center, double radius);
    OxGePoint3d center() const override { return center_; }
    double radius() const override { return radius_; }
    bool isClosed() const override { return true; }

protected:
    double StartParameter() const override { return 0.0; }
    double EndParameter() const override;
    OxGePoint3d PointAt(double parameter) const override;

private:
    OxGePoint3d center_;
    double radius_;
};

/// What an ellipse or an arc of one is made of.
struct EllipseData {
    OxGePoint3d center;
    OxGeVector3d majorAxis{1.0, 0.0, 0.0}; // from the centre to the curve
    double radiusRatio = 1.0;              // of the minor to the major axis
    double startAngle = 0.0;               // parameters: 0 at the major axis
    double endAngle = 0.0;
};

/// The minor axis is normal (0, 0, 1) × majorAxis × radiusRatio. Closed when the angles are 2π apart, within
/// 1e-9.
class OXDB_API Ellipse : public ResidentCurve<OxDbEllipse> {
public:
    Ellipse(Core& core, const EntityProperties& properties, const EllipseData& data);
    OxGePoint3d center() const override { return data_.center; }
    OxGeVector3d majorAxis() const override { return data_.majorAxis; }
    OxGeVector3d minorAxis() const override;
    double startAngle() const override { return data_.startAngle; }
    double endAngle() const override { return data_.endAngle; }
    bool isClosed() const override;

    /// What it was made with.
    const EllipseData& Data() const { return data_; }

protected:
    double StartParameter() const override { return data_.startAngle; }
    double EndParameter() const override { return data_.endAngle; }
    OxGePoint3d PointAt(double parameter) const override;

private:
    EllipseData data_;
};

/// An entity of a class that this library does not know; the class derives from OxDbEntity.
class OXDB_API OtherEntity : public ResidentEntity<OxDbEntity> {
public:
    OtherEntity(Core& core, const EntityProperties& properties, std::wstring className,
                OtherShape shape = {});
    ~OtherEntity() override;
    const OxRxClass* isA() const override { return &class_; }
    /// What the drawing shows of it.
    const OtherShape& Shape() const { return shape_; }

private:
    std::wstring className_;
    OxRxClass class_;
    OtherShape shape_;
};

} // namespace drawing
