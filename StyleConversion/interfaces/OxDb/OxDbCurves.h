// Points and the simple curves: lines, arcs, circles and ellipses.
#pragma once

#include "OxDb/OxDbEntity.h"

/// A position marked in the drawing.
class OXDB_API OxDbPoint : public OxDbEntity {
public:
    ~OxDbPoint() override;
    static const OxRxClass* desc();
    /// Drawing units.
    virtual OxGePoint3d position() const = 0;
};

/// A straight line; its parameter is the length from the start.
class OXDB_API OxDbLine : public OxDbCurve {
public:
    ~OxDbLine() override;
    static const OxRxClass* desc();
    /// Drawing units.
    virtual OxGePoint3d startPoint() const = 0;
    virtual OxGePoint3d endPoint() const = 0;
};

/// An arc of a circle. Its parameters are angles in radians, as they were given: the end's may be below the
/// start's, and the arc then runs on through 2π.
class OXDB_API OxDbArc : public OxDbCurve {
public:
    ~OxDbArc() override;
    static const OxRxClass* desc();
    /// Drawing units.
    virtual OxGePoint3d center() const = 0;
    virtual double radius() const = 0;
    /// Unit normal of the arc's plane; with a negative z the arc runs clockwise in the drawing plane.
    virtual OxGeVector3d normal() const = 0;
};

/// A whole circle; its parameter is the angle in radians, from 0 to 2π.
class OXDB_API OxDbCircle : public OxDbCurve {
public:
    ~OxDbCircle() override;
    static const OxRxClass* desc();
    /// Drawing units.
    virtual OxGePoint3d center() const = 0;
    virtual double radius() const = 0;
};

/// An ellipse or an arc of one; its parameter is the angle t of center + majorAxis cos t + minorAxis sin t.
class OXDB_API OxDbEllipse : public OxDbCurve {
public:
    ~OxDbEllipse() override;
    static const OxRxClass* desc();
    /// Drawing units.
    virtual OxGePoint3d center() const = 0;
    /// From the centre to the curve; its length is the radius.
    virtual OxGeVector3d majorAxis() const = 0;
    virtual OxGeVector3d minorAxis() const = 0;
    /// Radians, parameters of the ellipse, not reduced.
    virtual double startAngle() const = 0;
    virtual double endAngle() const = 0;
};
