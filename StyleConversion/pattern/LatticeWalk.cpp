// A box becomes a square by scaling; in a reduced basis few combinations reach into it that do not lie in it.
#include "StyleConversion/pattern/LatticeWalk.h"

#include "StyleConversion/encoding/IntegerConversion.h"
#include "StyleConversion/pattern/PatternLimits.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace pattern {
namespace {

// Each round of a reduction at least halves the longer vector but for the last ones.
constexpr int kMostRounds = 200;
constexpr double kMostMultiple = 1e9;

LatticePoint Combined(const LatticePoint& first, double firstTimes, const LatticePoint& second,
                      double secondTimes) {
    const auto a = static_cast<std::int64_t>(firstTimes);
    const auto b = static_cast<std::int64_t>(secondTimes);
    return {a * first.cycles + b * second.cycles, a * first.lines + b * second.lines};
}

bool IsLarge(const LatticePoint& point) {
    constexpr std::int64_t kMost = 1'000'000'000;
    return std::abs(point.cycles) > kMost || std::abs(point.lines) > kMost;
}

// A lattice vector in the units of the scaled axes.
struct Scaled {
    LatticePoint point;
    Vector vector;
};

class Scale {
public:
    Scale(const FamilyLattice& lattice, double unitX, double unitY)
        : lattice_(lattice), unitX_(unitX), unitY_(unitY) {}

    Scaled operator()(const LatticePoint& point) const {
        const Vector vector = lattice_.At(point);
        return {point, {vector.x / unitX_, vector.y / unitY_}};
    }

private:
    const FamilyLattice& lattice_;
    double unitX_;
    double unitY_;
};

double Dot(const Vector& first, const Vector& second) {
    return first.x * second.x + first.y * second.y;
}

// Makes both vectors as short as they can be, the shorter one first.
void Reduce(const Scale& scale, Scaled& shorter, Scaled& longer) {
    for (int round = 0; round < kMostRounds; ++round) {
        if (Dot(longer.vector, longer.vector) < Dot(shorter.vector, shorter.vector)) {
            std::swap(shorter, longer);
        }
        const double times =
            std::round(Dot(longer.vector, shorter.vector) / Dot(shorter.vector, shorter.vector));
        if (!(std::fabs(times) >= 1.0) || times > kMostMultiple || times < -kMostMultiple) {
            return;
        }
        const LatticePoint point = Combined(longer.point, 1.0, shorter.point, -times);
        if (IsLarge(point)) {
            return;
        }
        // Of two that are as long the first one stays, or they would take turns.
        const Scaled next = scale(point);
        if (!(Dot(next.vector, next.vector) < Dot(longer.vector, longer.vector))) {
            return;
        }
        longer = next;
    }
}

// The multiples t for which `start` + t * `step` lies in [-1, 1].
struct Interval {
    double low = -kMostMultiple;
    double high = kMostMultiple;

    void Cut(double start, double step) {
        // A step so small cannot lead out of the square, nor into it.
        if (std::fabs(step) < 1.0 / kMostMultiple) {
            if (std::fabs(start) > 1.0 + 1e-9) {
                high = low - 1.0;
            }
            return;
        }
        const double first = (-1.0 - start) / step;
        const double second = (1.0 - start) / step;
        low = std::max(low, std::ceil(std::min(first, second) - 1e-9));
        high = std::min(high, std::floor(std::max(first, second) + 1e-9));
    }
};

// The whole numbers from 1 up to that one, but for more than anybody looks at; -1 where it is below 0 or no
// number.
std::int32_t CountUpTo(double most) {
    return most >= 0.0 ? encoding::ToInt32(std::min(most, 2.0 * kMostSides)) : -1;
}

} // namespace

LatticeBasis ReducedBasis(const FamilyLattice& lattice, double unitX, double unitY) {
    const Scale scale(lattice, unitX, unitY);
    Scaled shorter = scale({1, 0});
    Scaled longer = scale({0, 1});
    Reduce(scale, shorter, longer);
    return {{shorter.point, lattice.At(shorter.point)}, {longer.point, lattice.At(longer.point)}};
}

std::vector<LatticeStep> StepsAlongX(const FamilyLattice& lattice, double from, double to, double height) {
    const Scale scale(lattice, to, height);
    const LatticeBasis basis = ReducedBasis(lattice, to, height);
    const Scaled first = scale(basis.first.point);
    const Scaled second = scale(basis.second.point);
    // Vectors of the square are at most the square root of 2 long; the lines of the lattice along the first
    // vector lie this far apart.
    const double apart = std::fabs(first.vector.x * second.vector.y - first.vector.y * second.vector.x) /
                         std::sqrt(Dot(first.vector, first.vector));
    std::vector<LatticeStep> steps;
    if (!(apart > 0.0)) {
        return steps;
    }
    // Many more than lie in the square, unless numbers differ so much that the basis cannot be reduced.
    constexpr std::int32_t kMostTried = 8 * kMostSides;
    std::int32_t tried = 0;
    const std::int32_t lines = CountUpTo(std::sqrt(2.0) / apart);
    for (std::int32_t q = -lines; q <= lines; ++q) {
        Interval interval;
        interval.Cut(q * second.vector.x, first.vector.x);
        interval.Cut(q * second.vector.y, first.vector.y);
        const std::int32_t points = CountUpTo(interval.high - interval.low);
        for (std::int32_t i = 0; i <= points && tried < kMostTried; ++i, ++tried) {
            const LatticePoint point = Combined(first.point, interval.low + i, second.point, q);
            const Vector vector = lattice.At(point);
            if (vector.x > from && vector.x <= to && !IsLarge(point)) {
                steps.push_back({point, vector});
            }
        }
    }
    std::sort(steps.begin(), steps.end(),
              [](const LatticeStep& a, const LatticeStep& b) { return a.vector.x < b.vector.x; });
    steps.resize(std::min(steps.size(), std::size_t{kMostSides}));
    return steps;
}

} // namespace pattern
