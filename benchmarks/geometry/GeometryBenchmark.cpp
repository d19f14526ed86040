// Hatches of 100,000 lines, and curves with up to 100,000 control points.
#include "drawing/geometry/BoundingBox.h"
#include "drawing/geometry/Hatch.h"
#include "drawing/geometry/Interpolation.h"
#include "drawing/geometry/Sampling.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>
#include <random>

namespace {

using geometry::HatchFamily;
using geometry::HatchLine;
using geometry::HatchLoop;
using geometry::NurbsCurve;
using geometry::Point;

constexpr double kRadius = 1000.0;

/// Points around a ring that is rough enough to be no circle, and too smooth to cut its hatch lines up.
std::vector<Point> Ring(std::size_t count) {
    std::mt19937_64 random(1);
    std::vector<Point> points(count);
    for (std::size_t index = 0; index < count; ++index) {
        const double angle = 2.0 * std::numbers::pi * static_cast<double>(index) / static_cast<double>(count);
        const double radius = kRadius * (1.0 - 1e-5 * static_cast<double>(random() % 1000));
        points[index] = {radius * std::cos(angle), radius * std::sin(angle)};
    }
    return points;
}

/// A closed cubic around the ring.
NurbsCurve RingCurve(std::size_t count) {
    std::vector<double> knots(count + 1);
    for (std::size_t index = 0; index <= count; ++index) {
        knots[index] = static_cast<double>(index);
    }
    NurbsCurve curve;
    geometry::MakeNurbsCurve(3, knots, Ring(count), {}, true, curve);
    return curve;
}

HatchLoop RingLoop(std::size_t count) {
    std::vector<geometry::BulgeVertex> vertices(count);
    const std::vector<Point> points = Ring(count);
    for (std::size_t index = 0; index < count; ++index) {
        vertices[index].point = points[index];
    }
    HatchLoop loop;
    loop.polyline = geometry::PolylineLoop{std::move(vertices), false};
    return loop;
}

HatchFamily Family(double spacing) {
    const double angle = 0.5;
    return {angle, {1, 2}, {-spacing * std::sin(angle), spacing * std::cos(angle)}, {}};
}

void Run(benchmark::State& state, const std::vector<HatchLoop>& loops, const HatchFamily& family) {
    std::vector<HatchLine> lines;
    for (auto _ : state) {
        if (EvaluateHatch(loops, {family}, 1000000, lines) != geometry::Status::kOk) {
            state.SkipWithError("refused");
            break;
        }
        benchmark::DoNotOptimize(lines.data());
    }
    state.counters["lines"] = static_cast<double>(lines.size());
}

void HatchOfAPolygon(benchmark::State& state) {
    Run(state, {RingLoop(static_cast<std::size_t>(state.range(0)))}, Family(2.0 * kRadius / 100000));
}
BENCHMARK(HatchOfAPolygon)->Arg(4)->Arg(1000)->Unit(benchmark::kMillisecond);

void HatchOfACircle(benchmark::State& state) {
    const OxGeCircArc2d circle{{3, 4}, kRadius, 0.0, 2.0 * std::numbers::pi, false};
    Run(state, {HatchLoop{{circle}}}, Family(2.0 * kRadius / 100000));
}
BENCHMARK(HatchOfACircle)->Unit(benchmark::kMillisecond);

void HatchOfASpline(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const NurbsCurve curve = RingCurve(count);
    const OxGeKnotVector knots(static_cast<int>(curve.knots.size()), curve.knots.data());
    OxGePoint2dArray points;
    for (const Point& point : curve.controlPoints) {
        points.append(point);
    }
    const auto edge = std::make_shared<const OxGeNurbCurve2d>(curve.degree, knots, points);
    Run(state, {HatchLoop{{edge}}}, Family(2.0 * kRadius / 100000));
}
BENCHMARK(HatchOfASpline)->Arg(16)->Arg(1000)->Unit(benchmark::kMillisecond);

void HatchOfDashes(benchmark::State& state) {
    HatchFamily family = Family(2.0 * kRadius / 316);
    family.dashes = {3.0, -1.0, 0.0, -1.0};
    Run(state, {RingLoop(100)}, family);
}
BENCHMARK(HatchOfDashes)->Unit(benchmark::kMillisecond);

void SampleACurve(benchmark::State& state) {
    const NurbsCurve curve = RingCurve(static_cast<std::size_t>(state.range(0)));
    const geometry::Interval interval = geometry::ParameterInterval(curve);
    std::vector<geometry::CurveSample> samples;
    for (auto _ : state) {
        geometry::SamplePoints(curve, interval.start, interval.end, 0.0002 * kRadius, samples);
        benchmark::DoNotOptimize(samples.data());
    }
    state.counters["samples"] = static_cast<double>(samples.size());
}
BENCHMARK(SampleACurve)->Arg(10)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BoundACurve(benchmark::State& state) {
    const NurbsCurve curve = RingCurve(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(geometry::BoundingBox(curve));
    }
}
BENCHMARK(BoundACurve)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

void InterpolatePoints(benchmark::State& state) {
    const std::vector<Point> points = Ring(static_cast<std::size_t>(state.range(0)));
    NurbsCurve curve;
    for (auto _ : state) {
        geometry::InterpolateThroughPoints(points, {}, curve);
        benchmark::DoNotOptimize(curve.controlPoints.data());
    }
}
BENCHMARK(InterpolatePoints)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

} // namespace
