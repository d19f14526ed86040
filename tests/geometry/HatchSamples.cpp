// Hatch areas that the geometry tests share.
#include "tests/geometry/HatchSamples.h"

#include "tests/geometry/CurveSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace geometrytests {

using geometry::HatchFamily;
using geometry::HatchLine;
using geometry::HatchLoop;
using geometry::Point;
using geometry::Vector;

HatchLoop Polygon(const std::vector<Point>& corners) {
    std::vector<geometry::BulgeVertex> vertices(corners.size());
    for (std::size_t index = 0; index < corners.size(); ++index) {
        vertices[index].point = corners[index];
    }
    return geometry::LoopFromVertices(vertices);
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
    switch (random() % 6) {
    case 0:
        return geometry::LineEdge{RandomPoint(random), RandomPoint(random)};
    case 1:
        return geometry::BulgeEdge{RandomPoint(random), RandomPoint(random), RandomBetween(random, -2, 2)};
    case 2:
        return geometry::BulgeEdge{RandomPoint(random), RandomPoint(random),
                                   RandomBetween(random, -0.02, 0.02)};
    case 3:
        return geometry::ArcEdge{RandomPoint(random), RandomBetween(random, 0.5, 8), start, end,
                                 random() % 2 == 0};
    case 4:
        return geometry::EllipseEdge{
            RandomPoint(random), RandomPoint(random), RandomBetween(random, 0.1, 1.5), start, end,
            random() % 2 == 0};
    default:
        return geometry::SplineEdge{RandomCurve(random)};
    }
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
    void operator()(const geometry::LineEdge& edge) {
        points.push_back(edge.start);
        points.push_back(edge.end);
    }
    /// Turned about the chord's ends: the angle between chord and the way to a point of the arc is that of
    /// half the arc that lies between, so points are found without the centre.
    void operator()(const geometry::BulgeEdge& edge) {
        const Vector chord = edge.end - edge.start;
        const double half = 2.0 * std::atan(edge.bulge);
        for (int step = 0; step <= chords; ++step) {
            const double part = static_cast<double>(step) / chords;
            const double reach = half == 0.0 ? part : std::sin(half * part) / std::sin(half);
            const double turn = half * (part - 1.0);
            points.push_back(edge.start +
                             reach * Vector{std::cos(turn) * chord.x - std::sin(turn) * chord.y,
                                            std::sin(turn) * chord.x + std::cos(turn) * chord.y});
        }
    }
    void operator()(const geometry::ArcEdge& edge) {
        Arc(edge.center, {edge.radius, 0}, {0, edge.clockwise ? -edge.radius : edge.radius}, edge.startAngle,
            edge.endAngle - edge.startAngle);
    }
    void operator()(const geometry::EllipseEdge& edge) {
        const double minor = edge.clockwise ? -edge.radiusRatio : edge.radiusRatio;
        Arc(edge.center, edge.majorAxis, minor * Vector{-edge.majorAxis.y, edge.majorAxis.x}, edge.startAngle,
            edge.endAngle - edge.startAngle);
    }
    void operator()(const geometry::SplineEdge& edge) {
        const geometry::Interval interval = geometry::ParameterInterval(edge.curve);
        std::vector<double> knots = edge.curve.knots;
        knots.erase(std::unique(knots.begin(), knots.end()), knots.end());
        for (std::size_t knot = 0; knot + 1 < knots.size(); ++knot) {
            if (knots[knot] < interval.start || knots[knot + 1] > interval.end) {
                continue;
            }
            for (int step = 0; step <= chords; ++step) {
                points.push_back(
                    Evaluate(edge.curve,
                             step == chords ? knots[knot + 1]
                                            : knots[knot] + (knots[knot + 1] - knots[knot]) * step / chords));
            }
        }
    }
};

} // namespace

HatchLoop RandomLoop(std::mt19937_64& random) {
    HatchLoop loop;
    const std::size_t count = 1 + random() % 6;
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
