// Hatch areas that the geometry tests share, and a second way of telling inside from outside.
#pragma once

#include "drawing/geometry/Hatch.h"
#include "drawing/geometry/NurbsCurve.h"

#include <random>
#include <vector>

namespace geometrytests {

/// A loop over vertices.
geometry::HatchLoop LoopOver(std::vector<geometry::BulgeVertex> vertices);

/// An edge along a curve that is not periodic.
geometry::HatchEdge EdgeAlong(const geometry::NurbsCurve& curve);

/// A straight-sided loop.
geometry::HatchLoop Polygon(const std::vector<geometry::Point>& corners);

geometry::HatchLoop Rectangle(double left, double bottom, double right, double top);

/// The lines of a hatch that must evaluate; fails the running test otherwise.
std::vector<geometry::HatchLine> Lines(const std::vector<geometry::HatchLoop>& loops,
                                       const std::vector<geometry::HatchFamily>& families);

/// Fails the running test unless the lines agree in number, order and, to a precision, coordinates.
void ExpectLines(const std::vector<geometry::HatchLine>& actual,
                 const std::vector<geometry::HatchLine>& expected, double precision = 1e-12);

/// A loop of every kind of edge in random places, crossing itself or not, with gaps between its edges.
geometry::HatchLoop RandomLoop(std::mt19937_64& random);

/// A loop as a closed polygon, curves divided evenly.
std::vector<geometry::Point> Tessellated(const geometry::HatchLoop& loop, int chordsPerCurve);

/// Even-odd inside of closed polygons, by counting the sides that a ray toward +x crosses.
bool IsInside(const std::vector<std::vector<geometry::Point>>& polygons, geometry::Point point);

double DistanceToSides(const std::vector<std::vector<geometry::Point>>& polygons, geometry::Point point);

} // namespace geometrytests
