// Curves that the geometry tests share, and a second way of evaluating them.
#pragma once

#include "drawing/geometry/NurbsCurve.h"

#include <random>
#include <string>
#include <vector>

namespace geometrytests {

/// A curve that must be valid; fails the running test otherwise.
geometry::NurbsCurve MakeCurve(int degree, const std::vector<double>& knots,
                               const std::vector<geometry::Point>& points,
                               const std::vector<double>& weights = {});

/// Knots 0 (degree + 1 times), 1, 2, …, last (degree + 1 times) for so many points.
std::vector<double> ClampedKnots(int degree, std::size_t points);

/// The full unit circle around 0: nine points, degree 2, rational.
geometry::NurbsCurve UnitCircle();

/// A random valid curve of a random degree up to 6: some clamped and some not, some rational, with knots
/// repeated up to the degree and with coincident control points.
geometry::NurbsCurve RandomCurve(std::mt19937_64& random);

double RandomBetween(std::mt19937_64& random, double low, double high);

/// The curve's point by the recursive definition of the basis functions (Cox and de Boor), summed over all
/// control points: slow, and nothing like the way the library does it.
geometry::Point ByDefinition(const geometry::NurbsCurve& curve, double parameter);

void ExpectNear(geometry::Point actual, geometry::Point expected, double precision = 1e-12);

double DistanceToSegment(geometry::Point point, geometry::Point start, geometry::Point end);

struct NamedCurve {
    std::string name;
    geometry::NurbsCurve curve;
};

/// Curves with everything that makes sampling hard: high curvature, kinks, repeated knots, coincident control
/// points, loops, cusps, heavy weights, a degree of 9, knots of very different spacing.
std::vector<NamedCurve> DifficultCurves();

} // namespace geometrytests
