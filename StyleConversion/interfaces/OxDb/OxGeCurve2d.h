// Curves of the plane: segments and arcs of hatch boundaries, and what all plane curves answer.
#pragma once

#include "OxDb/OxGePoint.h"

namespace OxGe {

/// Which class a plane entity is of.
enum EntityId {
    kEntity2d,    ///< Anything of the plane.
    kCurve2d,     ///< Any curve.
    kLineSeg2d,   ///< OxGeLineSeg2d.
    kCircArc2d,   ///< OxGeCircArc2d.
    kEllipArc2d,  ///< OxGeEllipArc2d.
    kNurbCurve2d, ///< OxGeNurbCurve2d.
};

} // namespace OxGe

/// A range of a curve's parameter.
class OXDB_API OxGeInterval {
public:
    /// An empty range at 0. `tolerance`: parameters nearer to each other than this count as equal.
    explicit OxGeInterval(double tolerance = 1e-12) : tolerance_(tolerance) {}
    OxGeInterval(double lower, double upper, double tolerance = 1e-12)
        : lower_(lower), upper_(upper), tolerance_(tolerance) {}

    /// As they were set, in the unit of the curve's parameter. length() is upperBound() less lowerBound().
    double lowerBound() const { return lower_; }
    double upperBound() const { return upper_; }
    double length() const { return upper_ - lower_; }
    double tolerance() const { return tolerance_; }
    /// Sets both bounds and keeps the tolerance.
    void set(double lower, double upper) {
        lower_ = lower;
        upper_ = upper;
    }

private:
    double lower_ = 0.0;
    double upper_ = 0.0;
    double tolerance_;
};

/// A box with sides along the axes.
class OXDB_API OxGeBoundBlock2d {
public:
    OxGeBoundBlock2d() = default;
    /// From the corners with the least and with the greatest coordinates.
    OxGeBoundBlock2d(const OxGePoint2d& minimum, const OxGePoint2d& maximum)
        : minimum_(minimum), maximum_(maximum) {}

    /// Copies the corners.
    void getMinMaxPoints(OxGePoint2d& minimum, OxGePoint2d& maximum) const {
        minimum = minimum_;
        maximum = maximum_;
    }

private:
    OxGePoint2d minimum_;
    OxGePoint2d maximum_;
};

/// Root of the plane geometry.
class OXDB_API OxGeEntity2d {
public:
    virtual ~OxGeEntity2d();
    /// The class of this entity.
    virtual OxGe::EntityId type() const = 0;
    /// True when the entity's class is `entityType` or derives from it.
    bool isKindOf(OxGe::EntityId entityType) const {
        return entityType == type() || entityType == OxGe::kCurve2d || entityType == OxGe::kEntity2d;
    }

protected:
    OxGeEntity2d() = default;
    OxGeEntity2d(const OxGeEntity2d&) = default;
    OxGeEntity2d& operator=(const OxGeEntity2d&) = default;
};

/// A curve of the plane over an interval of its parameter.
class OXDB_API OxGeCurve2d : public OxGeEntity2d {
public:
    ~OxGeCurve2d() override;

    /// Line segments and open arcs answer false. An arc is closed when its angles are 2π apart (within 1e-9),
    /// any other curve when its ends are equal within the tolerance.
    virtual bool isClosed(const OxGeTol& tolerance = OxGeContext::gTol) const = 0;
    /// A box around the whole curve; its corners are equal to the curve's extreme coordinates up to rounding.
    virtual OxGeBoundBlock2d boundBlock() const = 0;
    /// Sets the bounds of `interval` to the parameters of the curve's ends and leaves its tolerance as it is.
    virtual void getInterval(OxGeInterval& interval) const = 0;
    /// Points on the curve from one parameter to the other, both ends included, in order, and their
    /// parameters. No point of the curve in between is further than `tolerance` (a length, above 0) from the
    /// polyline through the points. Replaces what the arrays held. A curve that is not defined gives none.
    virtual void getSamplePoints(double fromParameter, double toParameter, double tolerance,
                                 OxGePoint2dArray& points, OxGeDoubleArray& parameters) const = 0;

protected:
    OxGeCurve2d() = default;
    OxGeCurve2d(const OxGeCurve2d&) = default;
    OxGeCurve2d& operator=(const OxGeCurve2d&) = default;
};

/// A straight segment; its parameter goes from 0 to 1.
class OXDB_API OxGeLineSeg2d : public OxGeCurve2d {
public:
    OxGeLineSeg2d() = default;
    /// From one point to the other.
    OxGeLineSeg2d(const OxGePoint2d& start, const OxGePoint2d& end) : start_(start), end_(end) {}

    /// Where the segment starts and ends, and how long it is, in drawing units.
    OxGePoint2d startPoint() const { return start_; }
    OxGePoint2d endPoint() const { return end_; }
    double length() const { return start_.distanceTo(end_); }
    /// Makes it another segment, and returns it.
    OxGeLineSeg2d& set(const OxGePoint2d& start, const OxGePoint2d& end) {
        start_ = start;
        end_ = end;
        return *this;
    }

    OxGe::EntityId type() const override { return OxGe::kLineSeg2d; }
    bool isClosed(const OxGeTol& tolerance = OxGeContext::gTol) const override;
    OxGeBoundBlock2d boundBlock() const override;
    void getInterval(OxGeInterval& interval) const override;
    void getSamplePoints(double fromParameter, double toParameter, double tolerance, OxGePoint2dArray& points,
                         OxGeDoubleArray& parameters) const override;

private:
    OxGePoint2d start_;
    OxGePoint2d end_;
};

/// An arc of an ellipse. Angles are parameters of the ellipse in radians, from the major axis, and grow in
/// the direction of travel: the point at angle t is center + majorAxis cos t + minorAxis sin t, where
/// minorAxis points to the left of majorAxis, or to its right when the arc runs clockwise.
class OXDB_API OxGeEllipArc2d : public OxGeCurve2d {
public:
    OxGeEllipArc2d() = default;
    /// `majorAxis` reaches from the centre to the curve; the minor radius is its length × `radiusRatio`.
    OxGeEllipArc2d(const OxGePoint2d& center, const OxGeVector2d& majorAxis, double radiusRatio,
                   double startAngle, double endAngle, bool clockwise);

    /// As they were given; radii in drawing units, angles in radians.
    OxGePoint2d center() const { return center_; }
    double majorRadius() const { return majorAxis_.length(); }
    double minorRadius() const { return majorAxis_.length() * radiusRatio_; }
    double radiusRatio() const { return radiusRatio_; }
    double startAng() const { return startAngle_; }
    double endAng() const { return endAngle_; }
    bool isClockWise() const { return clockwise_; }
    /// The points at the arc's angles, and the axes from the centre to the curve, in drawing units.
    OxGePoint2d startPoint() const;
    OxGePoint2d endPoint() const;
    OxGeVector2d majorAxis() const { return majorAxis_; }
    OxGeVector2d minorAxis() const;
    /// The point of the whole ellipse at that parameter, in radians.
    OxGePoint2d pointAt(double angle) const;

    OxGe::EntityId type() const override { return OxGe::kEllipArc2d; }
    bool isClosed(const OxGeTol& tolerance = OxGeContext::gTol) const override;
    OxGeBoundBlock2d boundBlock() const override;
    void getInterval(OxGeInterval& interval) const override;
    void getSamplePoints(double fromParameter, double toParameter, double tolerance, OxGePoint2dArray& points,
                         OxGeDoubleArray& parameters) const override;

private:
    OxGePoint2d center_;
    OxGeVector2d majorAxis_{1.0, 0.0};
    double radiusRatio_ = 1.0;
    double startAngle_ = 0.0;
    double endAngle_ = 0.0;
    bool clockwise_ = false;
};

/// An arc of a circle. Angles are radians from the x axis and grow in the direction of travel: the point at
/// angle t is center + radius (cos t, sin t), or center + radius (cos t, -sin t) when the arc runs clockwise.
class OXDB_API OxGeCircArc2d : public OxGeCurve2d {
public:
    OxGeCircArc2d() = default;
    /// Nothing is checked: the radius is in drawing units, the angles in radians.
    OxGeCircArc2d(const OxGePoint2d& center, double radius, double startAngle, double endAngle,
                  bool clockwise);

    /// As they were given.
    OxGePoint2d center() const { return center_; }
    double radius() const { return radius_; }
    double startAng() const { return startAngle_; }
    double endAng() const { return endAngle_; }
    bool isClockWise() const { return clockwise_; }
    /// The points at the arc's angles, and at any angle of the whole circle.
    OxGePoint2d startPoint() const;
    OxGePoint2d endPoint() const;
    OxGePoint2d pointAt(double angle) const;

    OxGe::EntityId type() const override { return OxGe::kCircArc2d; }
    bool isClosed(const OxGeTol& tolerance = OxGeContext::gTol) const override;
    OxGeBoundBlock2d boundBlock() const override;
    void getInterval(OxGeInterval& interval) const override;
    void getSamplePoints(double fromParameter, double toParameter, double tolerance, OxGePoint2dArray& points,
                         OxGeDoubleArray& parameters) const override;

private:
    OxGePoint2d center_;
    double radius_ = 1.0;
    double startAngle_ = 0.0;
    double endAngle_ = 0.0;
    bool clockwise_ = false;
};
