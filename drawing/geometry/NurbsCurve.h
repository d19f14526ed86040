// NURBS curves in the plane: building them from outside data, their interval, points, and closing.
#pragma once

#include "drawing/geometry/Point.h"
#include "drawing/geometry/Status.h"

#include <vector>

namespace geometry {

/// A curve that has passed MakeNurbsCurve (or came from InterpolateThroughPoints). With n control points and
/// degree p it has n + p + 1 knots, and its parameter runs from knots[p] to knots[n]. Points in drawing
/// units; the unit of the parameter is the knots' own.
struct NurbsCurve {
    int degree = 0;
    std::vector<double> knots;        ///< never decreasing
    std::vector<Point> controlPoints; ///< at least degree + 1
    std::vector<double> weights;      ///< as many as control points and positive; empty: not rational
};

/// A parameter interval, start < end.
struct Interval {
    double start = 0.0;
    double end = 0.0;
};

/// Checks the data and builds the curve. `weights` is empty for a curve that is not rational.
///
/// Knots: n + p + 1 of them, for a periodic curve too when its control points repeat by themselves (its first
/// p stand at the end again); or, with `periodic`, n + 1: one period, from the start of the interval to its
/// end. The control points are then repeated cyclically, and point 0 is the first that acts at the start.
/// With n + p + 1 knots `periodic` changes nothing. A knot less than its predecessor by no more than
/// kSameKnot is raised to it. Ends need not be clamped.
///
/// Refused, with `curve` left as it was: see Status. A knot inside the interval may be repeated up to
/// `degree` times (a kink), and more often only where both sides meet within kSamePoint all the same.
Status MakeNurbsCurve(int degree, const std::vector<double>& knots, const std::vector<Point>& controlPoints,
                      const std::vector<double>& weights, bool periodic, NurbsCurve& curve);

/// The whole parameter interval of the curve.
Interval ParameterInterval(const NurbsCurve& curve);

/// The point at `parameter`, which is first brought into the interval (a NaN counts as its start). At a knot
/// the piece to its right answers, at the interval's end the last piece.
Point Evaluate(const NurbsCurve& curve, double parameter);

/// True when the points at the two ends of the interval are no further apart than kSamePoint.
bool IsClosed(const NurbsCurve& curve);

/// Closes the curve: one that IsClosed stays as it is; any other gets a straight piece from its end to its
/// start, run through at the average speed of the rest. The points of the old interval do not change.
void MakeClosed(NurbsCurve& curve);

} // namespace geometry
