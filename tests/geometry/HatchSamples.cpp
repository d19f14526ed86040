// Hatch areas that the geometry tests share.
#include "tests/geometry/HatchSamples.h"

#include "drawing/geometry/NurbCurveData.h"
#include "tests/geometry/CurveSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace geometrytests {

using namespace geometry;

HatchLoop LoopOver(std::vector<geometry::BulgeVertex> vertices) {
    HatchLoop loop;
    loop.polyline = geometry::PolylineLoop{std::move(vertices), true};
    return loop;
}

geometry::HatchEdge EdgeAlong(const geometry::NurbsCurve& curve) {
    const OxGeKnotVector knots(static_cast<int>(curve.knots.size()), curve.knots.data());
    OxGePoint2dArray points;
    for (const Point& point : curve.controlPoints) {
        points.append(point);
    }
    OxGeDoubleArray weights;
    for (const double weight : curve.weights) {
        weights.append(weight);
    }
    return weights.isEmpty() ? std::make_shared<const OxGeNurbCurve2d>(curve.degree, knots, points)
                             : std::make_shared<const OxGeNurbCurve2d>(curve.degree, knots, points, weights);
}

HatchLoop Polygon(const std::vector<Point>& corners) {
    std::vector<geometry::BulgeVertex> vertices(corners.size());
    for (std::size_t index = 0; index < corners.size(); ++index) {
        vertices[index].point = corners[index];
    }
    return LoopOver(std::move(vertices));
}

HatchLoop Rectangle(double left, double bottom, double right, double top) {
    return Polygon({{left, bottom}, {right, bottom}, {right, top}, {left, top}});
}

std::vector<HatchLine> Lines(const std::vector<HatchLoop>& loops, const std::vector<HatchFamily>& families) {
    std::vector<HatchLine> lines;
    EXPECT_EQ(geometry::EvaluateHatch(loops, families, 1000000, lines), geometry::Status::kOk);
    return lines;
}

void ExpectLines(const std::vector<HatchLine>& actual, const std::vector<HatchLine>& expected,
                 double precision) {
    EXPECT_EQ(actual.size(), expected.size());
    for (std::size_t index = 0; index < std::min(actual.size(), expected.size()); ++index) {
        EXPECT_NEAR(actual[index].start.x, expected[index].start.x, precision) << "line " << index;
        EXPECT_NEAR(actual[index].start.y, expected[index].start.y, precision) << "line " << index;
        EXPECT_NEAR(actual[index].end.x, expected[index].end.x, precision) << "line " << index;
        EXPECT_NEAR(actual[index].end.y, expected[index].end.y, precision) << "line " << index;
    }
}

namespace {

Point RandomPoint(std::mt19937_64& random) {
    return {RandomBetween(random, -10, 10), RandomBetween(random, -10, 10)};
}

geometry::HatchEdge RandomEdge(std::mt19937_64& random) {
    const double start = RandomBetween(random, -7, 7);
    const double end = start + RandomBetween(random, 0, 2 * std::numbers::pi);
    switch (random() % 4) {
    case 0:
        return OxGeLineSeg2d{RandomPoint(random), RandomPoint(random)};
    case 1:
        return OxGeCircArc2d{RandomPoint(random), RandomBetween(random, 0.5, 8), start, end,
                             random() % 2 == 0};
    case 2: {
        const Point center = RandomPoint(random);
        const Point major = RandomPoint(random);
        return OxGeEllipArc2d{center, {major.x, major.y}, RandomBetween(random, 0.1, 1.5), start,
                              end,    random() % 2 == 0};
    }
    default:
        return EdgeAlong(RandomCurve(random));
    }
}

geometry::BulgeVertex RandomVertex(std::mt19937_64& random) {
    const double most = random() % 2 == 0 ? 2 : 0.02;
    return {RandomPoint(random), random() % 4 == 0 ? 0.0 : RandomBetween(random, -most, most)};
}

/// The points of an edge, as its definition says.
struct Tessellator {
    int chords;
    std::vector<Point> points;

    void Arc(Point center, Vector major, Vector minor, double start, double sweep) {
        for (int step = 0; step <= chords; ++step) {
            const double angle = start + sweep * step / chords;
            points.push_back(center + std::cos(angle) * major + std::sin(angle) * minor);
        }
    }
    void operator()(const OxGeLineSeg2d& edge) {
        points.push_back(edge.startPoint());
        points.push_back(edge.endPoint());
    }
    /// Turned about the chord's ends: the angle between chord and the way to a point of the arc is that of
    /// half the arc that lies between, so points are found without the centre.
    void Bulge(Point from, Point to, double bulge) {
        const Vector chord = to - from;
        const double half = 2.0 * std::atan(bulge);
        for (int step = 0; step <= chords; ++step) {
            const double part = static_cast<double>(step) / chords;
            const double reach = half == 0.0 ? part : std::sin(half * part) / std::sin(half);
            const double turn = half * (part - 1.0);
            points.push_back(from + reach * Vector{std::cos(turn) * chord.x - std::sin(turn) * chord.y,
                                                   std::sin(turn) * chord.x + std::cos(turn) * chord.y});
        }
    }
    void operator()(const OxGeCircArc2d& edge) {
        const double radius = edge.radius();
        Arc(edge.center(), {radius, 0}, {0, edge.isClockWise() ? -radius : radius}, edge.startAng(),
            edge.endAng() - edge.startAng());
    }
    void operator()(const OxGeEllipArc2d& edge) {
        const Vector major = {edge.majorAxis().x, edge.majorAxis().y};
        const double minor = edge.isClockWise() ? -edge.radiusRatio() : edge.radiusRatio();
        Arc(edge.center(), major, minor * Vector{-major.y, major.x}, edge.startAng(),
            edge.endAng() - edge.startAng());
    }
    void operator()(const std::shared_ptr<const OxGeNurbCurve2d>& edge) {
        const geometry::NurbsCurve& curve = edge->data()->curve;
        const geometry::Interval interval = geometry::ParameterInterval(curve);
        std::vector<double> knots = curve.knots;
        knots.erase(std::unique(knots.begin(), knots.end()), knots.end());
        for (std::size_t knot = 0; knot + 1 < knots.size(); ++knot) {
            if (knots[knot] < interval.start || knots[knot + 1] > interval.end) {
                continue;
            }
            for (int step = 0; step <= chords; ++step) {
                points.push_back(Evaluate(
                    curve, step == chords ? knots[knot + 1]
                                          : knots[knot] + (knots[knot + 1] - knots[knot]) * step / chords));
            }
        }
    }
};

} // namespace

HatchLoop RandomLoop(std::mt19937_64& random) {
    const std::size_t count = 1 + random() % 6;
    if (random() % 3 == 0) {
        std::vector<geometry::BulgeVertex> vertices(count + 1);
        std::generate(vertices.begin(), vertices.end(), [&] { return RandomVertex(random); });
        return LoopOver(std::move(vertices));
    }
    HatchLoop loop;
    for (std::size_t index = 0; index < count; ++index) {
        loop.edges.push_back(RandomEdge(random));
    }
    return loop;
}

std::vector<Point> Tessellated(const HatchLoop& loop, int chordsPerCurve) {
    Tessellator tessellator{chordsPerCurve, {}};
    for (const geometry::HatchEdge& edge : loop.edges) {
        std::visit(tessellator, edge);
    }
    const std::vector<geometry::BulgeVertex> vertices =
        loop.polyline ? loop.polyline->vertices : std::vector<geometry::BulgeVertex>();
    for (std::size_t index = 0; index < vertices.size(); ++index) {
        tessellator.Bulge(vertices[index].point, vertices[(index + 1) % vertices.size()].point,
                          vertices[index].bulge);
    }
    return tessellator.points;
}

bool IsInside(const std::vector<std::vector<Point>>& polygons, Point point) {
    bool inside = false;
    for (const std::vector<Point>& polygon : polygons) {
        for (std::size_t index = 0; index < polygon.size(); ++index) {
            const Point a = polygon[index];
            const Point b = polygon[(index + 1) % polygon.size()];
            if ((a.y > point.y) != (b.y > point.y) &&
                point.x < a.x + (b.x - a.x) * ((point.y - a.y) / (b.y - a.y))) {
                inside = !inside;
            }
        }
    }
    return inside;
}

double DistanceToSides(const std::vector<std::vector<Point>>& polygons, Point point) {
    double nearest = 1e300;
    for (const std::vector<Point>& polygon : polygons) {
        for (std::size_t index = 0; index < polygon.size(); ++index) {
            nearest = std::min(
                nearest, DistanceToSegment(point, polygon[index], polygon[(index + 1) % polygon.size()]));
        }
    }
    return nearest;
}

} // namespace geometrytests
