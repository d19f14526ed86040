// Sides that families share are searched for one by one, among the vectors of the coarsest lattice; one
// family is tiled by stacks of its lattice's lines along any of its short vectors.
#include "StyleConversion/pattern/TileSearch.h"

#include "StyleConversion/pattern/LatticeWalk.h"
#include "StyleConversion/pattern/PatternLimits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
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

double ShareAlong(const FamilyLattice& lattice, double length) {
    const LatticeFit fit = lattice.NearestTo({length, 0.0});
    return IsOrigin(fit.point) ? HUGE_VAL : lattice.ShareOf(fit);
}

// The worst miss of (length, 0) in the lattices; infinite where it leads to the origin of one, or is more
// than enough. The lattice that said so is asked first the next time: mostly it says so again.
double WorstShare(const Lattices& lattices, double length, double enough, std::size_t& first) {
    if (!(ShareAlong(lattices[first], length) <= enough)) {
        return HUGE_VAL;
    }
    double worst = 0.0;
    for (std::size_t i = 0; i < lattices.size(); ++i) {
        worst = std::max(worst, ShareAlong(lattices[i], length));
        if (!(worst <= enough)) {
            first = i;
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
    std::size_t first = 0;
    double from = 0.0;
    double to = 2.0 * std::sqrt(coarsest.CellArea());
    for (int round = 0; round < kMostRounds && from < longest; ++round) {
        to = std::min(to, longest);
        for (const LatticeStep& step : StepsAlongX(coarsest, from, to, height)) {
            const double share = WorstShare(lattices, step.vector.x, 2.0 * bounds.share, first);
            if (share <= kNoMiss) {
                return step.vector.x;
            }
            if (std::isfinite(share)) {
                const double between = BetweenPoints(lattices, step.vector.x);
                if (between > 0.0 && WorstShare(lattices, between, bounds.share, first) <= bounds.share) {
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

/// A vector of a lattice as the lower side of a tile, and one that makes up the lattice with it.
struct Side {
    Vector along;
    Vector next;
};

/// The same by their multiples of the vectors of a basis.
struct SideTimes {
    int along[2];
    int next[2];
};

// Both multiples of a side are at most so many, and no multiples of fewer.
constexpr int kMostTimes = 8;

constexpr std::size_t WriteSides(SideTimes* target) {
    std::size_t count = 0;
    for (int p = 1; p <= kMostTimes; ++p) {
        for (int q = -kMostTimes; q <= kMostTimes; ++q) {
            if (std::gcd(p, q) == 1) {
                int r = 0;
                while ((1 + q * r) % p != 0) {
                    ++r;
                }
                if (target != nullptr) {
                    target[count] = {{p, q}, {r, (1 + q * r) / p}};
                }
                ++count;
            }
        }
    }
    return count;
}

constexpr auto kSides = [] {
    std::array<SideTimes, WriteSides(nullptr) + 1> sides{{{{0, 1}, {1, 0}}}};
    WriteSides(sides.data() + 1);
    return sides;
}();

Vector Combined(const LatticeBasis& basis, const int (&times)[2]) {
    return {times[0] * basis.first.vector.x + times[1] * basis.second.vector.x,
            times[0] * basis.first.vector.y + times[1] * basis.second.vector.y};
}

// The rectangles with the fewest dash cycles, one for each of several bounds. Their lower sides are vectors
// of the lattice; lines of the lattice along these are stacked until they are in phase.
class Stacks {
    static constexpr double kNearlyWhole = 1e-3; // degrees

public:
    Stacks(const PatternLine& family, const std::vector<TileBounds>& bounds)
        : family_(family), lattice_(family, family.angle), bounds_(bounds), best_(bounds.size()) {
        for (const TileBounds& one : bounds) {
            most_.push_back(
                std::min(one.mostCells, one.mostDashes / static_cast<double>(family.dashes.size())));
        }
    }

    // Of the first bounds that any keeps. No other is better than one of one cell along the family's lines.
    std::optional<Rectangle> Run() {
        Try({{lattice_.Cycle(), 0.0}, {lattice_.Shift(), lattice_.Spacing()}});
        if (!(best_.front() && most_.front() < 1.0)) {
            const LatticeBasis basis = ReducedBasis(lattice_);
            for (const SideTimes& times : kSides) {
                Try({Combined(basis, times.along), Combined(basis, times.next)});
            }
        }
        for (const std::optional<Rectangle>& best : best_) {
            if (best) {
                return best;
            }
        }
        return std::nullopt;
    }

private:
    // The first of the multiples of a ratio that comes so near to a whole number is the denominator of one of
    // its convergents, which Euclid's algorithm gives.
    void Try(const Side& side) {
        const double length = std::sqrt(side.along.x * side.along.x + side.along.y * side.along.y);
        const Vector direction = {side.along.x / length, side.along.y / length};
        const double along = std::fabs(side.next.x * direction.x + side.next.y * direction.y);
        const double shift = along - std::floor(along / length) * length;
        // How far from phase a share of 1 is.
        const double whole = std::min(lattice_.AlongFor(1.0) / std::fabs(direction.x),
                                      lattice_.AcrossFor(1.0) / std::fabs(direction.y));
        double rows = 1.0;
        double before = 0.0;
        double rest = shift;
        double last = length;
        double off = std::min(rest, length - rest);
        std::size_t open = bounds_.size(); // the bounds before this one are not kept yet
        double most = MostOf(open);
        while (rows <= most) {
            while (open > 0 && off <= bounds_[open - 1].share * whole) {
                Take(--open, side, length, rows);
                most = MostOf(open);
            }
            if (!(rest > 0.0)) {
                return;
            }
            const double quotient = std::floor(last / rest);
            last -= quotient * rest;
            std::swap(last, rest);
            before += quotient * rows;
            std::swap(before, rows);
            off = rest;
        }
    }

    // Of the first bounds; -1 without any.
    double MostOf(std::size_t count) const {
        double most = -1.0;
        for (std::size_t i = 0; i < count; ++i) {
            most = std::max(most, most_[i]);
        }
        return most;
    }

    void Take(std::size_t index, const Side& side, double length, double rows) {
        if (!(rows <= most_[index])) {
            return;
        }
        const bool isOwn = side.along.y == 0.0;
        const double turn = isOwn ? 0.0 : std::atan2(side.along.y, side.along.x) / kRadiansPerDegree;
        const double apart = isOwn ? std::fabs(lattice_.Spacing()) : lattice_.CellArea() / length;
        const double angle = family_.angle + turn;
        Rectangle rectangle{AngleOfRectangle(std::round(angle)), length, rows * apart};
        // Angles are meant to be whole where that makes no difference.
        if (std::fabs(angle - std::round(angle)) > kNearlyWhole ||
            !Keeps(rectangle, rows, std::min(kUnseenMiss, bounds_[index].share))) {
            rectangle.angle = AngleOfRectangle(angle);
        }
        if (Keeps(rectangle, rows, bounds_[index].share)) {
            best_[index] = rectangle;
            most_[index] = rows - 1.0;
        }
    }

    bool Keeps(const Rectangle& rectangle, double cells, double share) const {
        const FamilyFit fit = FitOf(family_, rectangle);
        return static_cast<double>(fit.Cells()) == cells && fit.share <= share;
    }

    const PatternLine& family_;
    FamilyLattice lattice_;
    const std::vector<TileBounds>& bounds_;
    std::vector<std::optional<Rectangle>> best_;
    std::vector<double> most_; // cells, for each of the bounds
};

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

std::optional<Rectangle> FindRectangleAtAnyAngle(const PatternLine& family,
                                                 const std::vector<TileBounds>& bounds) {
    return Stacks(family, bounds).Run();
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
