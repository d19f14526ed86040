// The arc of an ellipse between two points, as path commands state it.
#pragma once

#include "preview/Box.h"

#include <optional>

namespace preview {

/// Radii in the path's units; `rotation` is the angle of the first radius in degrees, counter-clockwise with
/// y up. Of the four arcs of such an ellipse that join two points, `largeArc` asks for one of more than 180
/// degrees and `clockwise` for one that runs clockwise as seen with y up.
struct ArcShape {
    double radiusX = 0.0;
    double radiusY = 0.0;
    double rotation = 0.0;
    bool largeArc = false;
    bool clockwise = false;
};

/// The same arc by its centre. The point at angle t is
/// center + (radiusX cos t, radiusY sin t) turned by the rotation; the arc runs from `start` over `sweep`, in
/// radians, counter-clockwise where positive.
struct CenteredArc {
    Point center;
    double radiusX = 0.0;
    double radiusY = 0.0;
    double cosine = 1.0; // of the rotation
    double sine = 0.0;
    double start = 0.0;
    double sweep = 0.0;

    Point At(double t) const;
    /// The direction of growing t, as long as the radii make it.
    Point DirectionAt(double t) const;
    /// The exact box around the arc.
    Box Bounds() const;
};

/// The centre of an arc from one point to another. Radii that are too small to reach grow to the smallest
/// that do, in proportion. Nothing when the points are equal, a radius is zero, or a number is not finite:
/// the arc is then the straight line between the points.
std::optional<CenteredArc> CenterOf(Point from, const ArcShape& shape, Point to);

} // namespace preview
