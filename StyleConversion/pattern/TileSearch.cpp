// Each side is searched for by itself, among the vectors of the coarsest family's lattice.
#include "StyleConversion/pattern/TileSearch.h"

#include "StyleConversion/pattern/LatticeWalk.h"
#include "StyleConversion/pattern/PatternLimits.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <numeric>

namespace pattern {
namespace {

using Lattices = std::vector<FamilyLattice>;

bool IsOrigin(const LatticePoint& point) {
    return point.cycles == 0 && point.lines == 0;
}

Lattices LatticesOf(const std::vector<const PatternLine*>& families, double frame) {
    Lattices lattices;
    lattices.reserve(families.size());
    for (const PatternLine* const family : families) {
        lattices.emplace_back(*family, frame);
    }
    return lattices;
}

// The worst miss of (length, 0) in the lattices; infinite where it leads to the origin of one.
double WorstShare(const Lattices& lattices, double length, double enough) {
    double worst = 0.0;
    for (const FamilyLattice& lattice : lattices) {
        const LatticeFit fit = lattice.NearestTo({length, 0.0});
        worst = std::max(worst, IsOrigin(fit.point) ? HUGE_VAL : lattice.ShareOf(fit));
        if (!(worst <= enough)) {
            return HUGE_VAL;
        }
    }
    return worst;
}

// The length that misses the lattice points next to (length, 0) the least, by least squares of the shares.
double BetweenPoints(const Lattices& lattices, double length) {
    double sum = 0.0;
    double weights = 0.0;
    for (const FamilyLattice& lattice : lattices) {
        const LatticePoint point = lattice.NearestTo({length, 0.0}).point;
        const auto lines = static_cast<double>(point.lines);
        const double along = static_cast<double>(point.cycles) * lattice.Cycle() + lines * lattice.Shift();
        const double across = lines * lattice.Spacing();
        const Vector weight = {lattice.Direction().x / lattice.AlongFor(1.0),
                               0.0 - lattice.Direction().y / lattice.AcrossFor(1.0)};
        sum += weight.x * along / lattice.AlongFor(1.0) + weight.y * across / lattice.AcrossFor(1.0);
        weights += weight.x * weight.x + weight.y * weight.y;
    }
    return sum / weights;
}

// The coarsest lattice has the fewest vectors to try.
const FamilyLattice& Coarsest(const Lattices& lattices) {
    return *std::max_element(lattices.begin(), lattices.end(),
                             [](const FamilyLattice& first, const FamilyLattice& second) {
                                 return first.CellArea() < second.CellArea();
                             });
}

double FinestCell(const Lattices& lattices) {
    double finest = HUGE_VAL;
    for (const FamilyLattice& lattice : lattices) {
        finest = std::min(finest, lattice.CellArea());
    }
    return finest;
}

// The shortest vector along the x axis that lies in all lattices and is no longer than that.
std::optional<double> FindSide(const Lattices& lattices, const TileBounds& bounds, double mostLength) {
    constexpr double kGrowth = 8.0;
    constexpr int kMostRounds = 64; // a cell may be so narrow that its area is 0
    constexpr double kNoMiss = 1e-7;
    const FamilyLattice& coarsest = Coarsest(lattices);
    const double height =
        std::max(coarsest.AlongFor(bounds.share), coarsest.AcrossFor(bounds.share)) * std::numbers::sqrt2;
    const double longest =
        std::min(mostLength, bounds.mostCells * std::max(coarsest.Cycle(), std::fabs(coarsest.Spacing())));
    double from = 0.0;
    double to = 2.0 * std::sqrt(coarsest.CellArea());
    for (int round = 0; round < kMostRounds && from < longest; ++round) {
        to = std::min(to, longest);
        for (const LatticeStep& step : StepsAlongX(coarsest, from, to, height)) {
            const double share = WorstShare(lattices, step.vector.x, 2.0 * bounds.share);
            if (share <= kNoMiss) {
                return step.vector.x;
            }
            if (std::isfinite(share)) {
                const double between = BetweenPoints(lattices, step.vector.x);
                if (between > 0.0 && WorstShare(lattices, between, bounds.share) <= bounds.share) {
                    return between;
                }
            }
        }
        from = to;
        to *= kGrowth;
    }
    return std::nullopt;
}

bool KeepsBounds(const std::vector<const PatternLine*>& families, const Rectangle& rectangle,
                 const TileBounds& bounds) {
    double dashes = 0.0;
    for (const PatternLine* const family : families) {
        const auto cells = static_cast<double>(FitOf(*family, rectangle).Cells());
        if (!(cells >= 1.0 && cells <= bounds.mostCells)) {
            return false;
        }
        dashes += cells * static_cast<double>(family->dashes.size());
    }
    return dashes <= bounds.mostDashes;
}

// The angles of short vectors of a family's lattice.
std::vector<double> AnglesOfShortVectors(const PatternLine& family) {
    constexpr int kMostTimes = 3;
    const LatticeBasis basis = ReducedBasis(FamilyLattice(family));
    std::vector<double> angles;
    for (int p = 0; p <= kMostTimes; ++p) {
        for (int q = p == 0 ? 1 : -kMostTimes; q <= kMostTimes; ++q) {
            if (std::gcd(p, q) == 1) {
                const double x = p * basis.first.vector.x + q * basis.second.vector.x;
                const double y = p * basis.first.vector.y + q * basis.second.vector.y;
                angles.push_back(AngleOfRectangle(std::atan2(y, x) / kRadiansPerDegree));
            }
        }
    }
    return angles;
}

} // namespace

std::int64_t FamilyFit::Cells() const {
    return std::abs(right.cycles * up.lines - right.lines * up.cycles);
}

double AngleOfRectangle(double degrees) {
    const double angle = std::fmod(degrees, 180.0);
    const double positive = angle < 0.0 ? angle + 180.0 : angle + 0.0;
    return positive < 180.0 ? positive : 0.0;
}

FamilyFit FitOf(const PatternLine& line, const Rectangle& rectangle) {
    const FamilyLattice lattice(line, rectangle.angle);
    const LatticeFit right = lattice.NearestTo({rectangle.width, 0.0});
    const LatticeFit up = lattice.NearestTo({0.0, rectangle.height});
    const LatticeFit& worse = lattice.ShareOf(right) > lattice.ShareOf(up) ? right : up;
    return {right.point, up.point, lattice.ShareOf(worse),
            std::max(std::fabs(worse.along), std::fabs(worse.across))};
}

std::optional<Rectangle> FindRectangle(const std::vector<const PatternLine*>& families, double angle,
                                       const TileBounds& bounds) {
    const Lattices lattices = LatticesOf(families, angle);
    const std::optional<double> width = FindSide(lattices, bounds, HUGE_VAL);
    if (!width) {
        return std::nullopt;
    }
    // A little more than the finest family has room for.
    const double mostHeight = (bounds.mostCells + 0.5) * FinestCell(lattices) / *width;
    const std::optional<double> height = FindSide(LatticesOf(families, angle + 90.0), bounds, mostHeight);
    if (!height) {
        return std::nullopt;
    }
    const Rectangle rectangle{angle, *width, *height};
    return KeepsBounds(families, rectangle, bounds) ? std::optional(rectangle) : std::nullopt;
}

std::optional<Rectangle> FindRectangleAtAnyAngle(const PatternLine& family, const TileBounds& bounds) {
    constexpr double kFewCells = 16.0;
    std::optional<Rectangle> best;
    double fewest = HUGE_VAL;
    TileBounds fewer = bounds;
    const auto tryAngle = [&](double angle) {
        if (const auto rectangle = FindRectangle({&family}, angle, fewer)) {
            fewest = static_cast<double>(FitOf(family, *rectangle).Cells());
            fewer.mostCells = fewest - 1.0;
            best = rectangle;
        }
    };
    tryAngle(AngleOfRectangle(family.angle));
    tryAngle(0.0);
    if (fewest <= kFewCells) {
        return best;
    }
    for (const double angle : AnglesOfShortVectors(family)) {
        tryAngle(angle);
    }
    return best;
}

Rectangle NearestStack(const PatternLine& family, double mostRows) {
    // The multiples of a ratio that come nearer to a whole number than any before are the denominators of its
    // continued fraction.
    double rows = 1.0;
    double before = 0.0;
    double rest = family.offset / family.dashTotal;
    while (rest > 1.0 / kMostCells) {
        const double quotient = std::floor(1.0 / rest);
        const double next = quotient * rows + before;
        if (!(next <= mostRows)) {
            break;
        }
        before = rows;
        rows = next;
        rest = 1.0 / rest - quotient;
    }
    return {AngleOfRectangle(family.angle), family.dashTotal, rows * std::fabs(family.spacing)};
}

} // namespace pattern
