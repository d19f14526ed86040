// Curves that the geometry tests share.
#include "tests/geometry/CurveSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace geometrytests {

using namespace geometry;

void ExpectNear(Point actual, Point expected, double precision) {
    EXPECT_NEAR(actual.x, expected.x, precision);
    EXPECT_NEAR(actual.y, expected.y, precision);
}

NurbsCurve MakeCurve(int degree, const std::vector<double>& knots, const std::vector<Point>& points,
                     const std::vector<double>& weights) {
    NurbsCurve curve;
    EXPECT_EQ(geometry::MakeNurbsCurve(degree, knots, points, weights, false, curve), geometry::Status::kOk);
    return curve;
}

std::vector<double> ClampedKnots(int degree, std::size_t points) {
    const auto order = static_cast<std::size_t>(degree) + 1;
    std::vector<double> knots(order, 0.0);
    for (std::size_t inner = order; inner < points; ++inner) {
        knots.push_back(static_cast<double>(inner - order + 1));
    }
    knots.insert(knots.end(), order, static_cast<double>(points - order + 1));
    return knots;
}

NurbsCurve UnitCircle() {
    const double half = std::numbers::sqrt2 / 2.0;
    return MakeCurve(2, {0, 0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 4},
                     {{1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}, {-1, -1}, {0, -1}, {1, -1}, {1, 0}},
                     {1, half, 1, half, 1, half, 1, half, 1});
}

double RandomBetween(std::mt19937_64& random, double low, double high) {
    return low + (high - low) * (static_cast<double>(random() >> 11) / 9007199254740992.0);
}

NurbsCurve RandomCurve(std::mt19937_64& random) {
    const int degree = 1 + static_cast<int>(random() % 6);
    const std::size_t count = static_cast<std::size_t>(degree) + 1 + random() % 12;
    std::vector<Point> points;
    for (std::size_t index = 0; index < count; ++index) {
        const bool repeats = !points.empty() && random() % 6 == 0;
        points.push_back(repeats ? points.back()
                                 : Point{RandomBetween(random, -10, 10), RandomBetween(random, -5, 5)});
    }
    const bool clamped = random() % 3 != 0;
    const auto order = static_cast<std::size_t>(degree) + 1;
    std::vector<double> knots;
    double knot = RandomBetween(random, -3, 3);
    std::size_t repeated = 0;
    while (knots.size() < count + order) {
        const bool inHead = clamped && knots.size() < order;
        const bool inTail = clamped && knots.size() > count;
        const bool repeats = repeated < static_cast<std::size_t>(degree) && random() % 3 == 0;
        if (!knots.empty() && !inHead && !inTail && !(repeats && knots.size() != count)) {
            knot += RandomBetween(random, 0.05, 2.0);
            repeated = 0;
        }
        ++repeated;
        knots.push_back(knot);
    }
    std::vector<double> weights;
    if (random() % 2 == 0) {
        for (std::size_t index = 0; index < count; ++index) {
            weights.push_back(std::pow(10.0, RandomBetween(random, -1.0, 1.0)));
        }
    }
    return MakeCurve(degree, knots, points, weights);
}

namespace {

double Basis(const std::vector<double>& knots, std::size_t index, int degree, double parameter, double last) {
    if (degree == 0) {
        const bool inside = knots[index] <= parameter && parameter < knots[index + 1];
        const bool atEnd = parameter == last && knots[index] < last && knots[index + 1] == last;
        return inside || atEnd ? 1.0 : 0.0;
    }
    const auto reach = static_cast<std::size_t>(degree);
    double sum = 0.0;
    if (knots[index + reach] > knots[index]) {
        sum += (parameter - knots[index]) / (knots[index + reach] - knots[index]) *
               Basis(knots, index, degree - 1, parameter, last);
    }
    if (knots[index + reach + 1] > knots[index + 1]) {
        sum += (knots[index + reach + 1] - parameter) / (knots[index + reach + 1] - knots[index + 1]) *
               Basis(knots, index + 1, degree - 1, parameter, last);
    }
    return sum;
}

} // namespace

Point ByDefinition(const NurbsCurve& curve, double parameter) {
    const double last = geometry::ParameterInterval(curve).end;
    Point sum;
    double weightSum = 0.0;
    for (std::size_t index = 0; index < curve.controlPoints.size(); ++index) {
        const double weight = curve.weights.empty() ? 1.0 : curve.weights[index];
        const double share = weight * Basis(curve.knots, index, curve.degree, parameter, last);
        sum = sum + share * curve.controlPoints[index];
        weightSum += share;
    }
    return (1.0 / weightSum) * sum;
}

double DistanceToSegment(Point point, Point start, Point end) {
    const geometry::Vector along = end - start;
    const double squared = geometry::Dot(along, along);
    if (squared == 0.0) {
        return geometry::Distance(point, start);
    }
    const double fraction = std::clamp(geometry::Dot(point - start, along) / squared, 0.0, 1.0);
    return geometry::Distance(point, start + fraction * along);
}

std::vector<NamedCurve> DifficultCurves() {
    std::vector<NamedCurve> curves;
    curves.push_back(
        {"zigzag of degree 1",
         MakeCurve(1, ClampedKnots(1, 7), {{0, 0}, {1, 5}, {2, 0}, {3, 5}, {4, 0}, {5, 5}, {6, 0}})});
    curves.push_back({"parabola", MakeCurve(2, ClampedKnots(2, 3), {{0, 0}, {5, 10}, {10, 0}})});
    curves.push_back(
        {"hairpin", MakeCurve(3, ClampedKnots(3, 4), {{0, 0}, {100, 0.01}, {100, -0.01}, {0, 0}})});
    curves.push_back({"cusp", MakeCurve(3, ClampedKnots(3, 4), {{0, 0}, {10, 10}, {0, 10}, {10, 0}})});
    curves.push_back({"loop", MakeCurve(3, ClampedKnots(3, 4), {{0, 0}, {30, 10}, {-20, 10}, {10, 0}})});
    curves.push_back(
        {"there and back on one line",
         MakeCurve(3, ClampedKnots(3, 6), {{0, 0}, {10, 0}, {-10, 0}, {10, 0}, {-5, 0}, {3, 0}})});
    curves.push_back({"kink at a knot of full multiplicity",
                      MakeCurve(3, {0, 0, 0, 0, 1, 1, 1, 2, 2, 2, 2},
                                {{0, 0}, {1, 4}, {3, 4}, {4, 0}, {5, 4}, {7, 4}, {8, 0}})});
    curves.push_back(
        {"kink by coincident control points",
         MakeCurve(3, ClampedKnots(3, 7), {{0, 0}, {2, 6}, {5, 5}, {5, 5}, {5, 5}, {8, -6}, {10, 0}})});
    curves.push_back({"repeated inner knots",
                      MakeCurve(3, {0, 0, 0, 0, 1, 1, 2, 2, 3, 3, 3, 3},
                                {{0, 0}, {1, 3}, {2, -3}, {3, 3}, {4, -3}, {5, 3}, {6, -3}, {7, 0}})});
    curves.push_back({"all control points in one place",
                      MakeCurve(3, ClampedKnots(3, 5), {{3, 4}, {3, 4}, {3, 4}, {3, 4}, {3, 4}})});
    curves.push_back({"rational circle", UnitCircle()});
    curves.push_back({"heavy weight", MakeCurve(2, ClampedKnots(2, 4), {{0, 0}, {5, 10}, {6, -10}, {10, 0}},
                                                {1, 1000, 1, 1})});
    curves.push_back(
        {"light weights", MakeCurve(3, ClampedKnots(3, 5), {{0, 0}, {5, 10}, {6, -10}, {7, 3}, {10, 0}},
                                    {1, 1e-6, 1, 1e-4, 1})});
    curves.push_back({"degree 9", MakeCurve(9, ClampedKnots(9, 13),
                                            {{0, 0},
                                             {1, 9},
                                             {2, -9},
                                             {3, 9},
                                             {4, -9},
                                             {5, 9},
                                             {6, -9},
                                             {7, 9},
                                             {8, -9},
                                             {9, 9},
                                             {10, -9},
                                             {11, 9},
                                             {12, 0}})});
    curves.push_back({"knots of very different spacing",
                      MakeCurve(2, {0, 0, 0, 1e-9, 1, 1000, 1000.0001, 1001, 1001, 1001},
                                {{0, 0}, {1, 5}, {4, 5}, {6, -2}, {7, 0}, {9, 3}, {12, 0}})});
    curves.push_back(
        {"far from the origin",
         MakeCurve(
             3, ClampedKnots(3, 5),
             {{1e7, 1e7}, {1e7 + 1, 1e7 + 5}, {1e7 + 3, 1e7 - 5}, {1e7 + 6, 1e7 + 5}, {1e7 + 8, 1e7}})});
    return curves;
}

} // namespace geometrytests
