// An arc of a circle in space: the curved segment of a polyline.
#pragma once

#include "OxDb/OxGePoint.h"

/// Runs from its start point to its end point round `normal`, counter-clockwise when seen from the side that
/// the normal points to: a negative z of the normal means clockwise in the drawing plane. Angles are radians,
/// measured from the start point in the direction of travel: startAng() is 0, endAng() the included angle.
class OXDB_API OxGeCircArc3d {
public:
    OxGeCircArc3d() = default;
    /// Nothing is checked: lengths are in drawing units, the angle in radians.
    OxGeCircArc3d(const OxGePoint3d& start, const OxGePoint3d& end, const OxGePoint3d& center, double radius,
                  double includedAngle, const OxGeVector3d& normal)
        : start_(start), end_(end), center_(center), normal_(normal), radius_(radius),
          includedAngle_(includedAngle) {}

    /// As they were given.
    OxGePoint3d startPoint() const { return start_; }
    OxGePoint3d endPoint() const { return end_; }
    OxGePoint3d center() const { return center_; }
    OxGeVector3d normal() const { return normal_; }
    double radius() const { return radius_; }
    double startAng() const { return 0.0; }
    double endAng() const { return includedAngle_; }

private:
    OxGePoint3d start_;
    OxGePoint3d end_;
    OxGePoint3d center_;
    OxGeVector3d normal_{0.0, 0.0, 1.0};
    double radius_ = 0.0;
    double includedAngle_ = 0.0;
};
