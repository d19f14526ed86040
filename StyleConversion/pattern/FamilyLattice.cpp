// The lattice has the basis (dash cycle, 0), (shift, spacing), turned by the family's angle.
#include "StyleConversion/pattern/FamilyLattice.h"

#include "StyleConversion/pattern/PatternLimits.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace pattern {
namespace {

// A whole number that is far from where integers end, so that sums and products of a few stay exact.
std::int64_t Whole(double value) {
    constexpr double kMost = 1e9;
    return static_cast<std::int64_t>(std::clamp(std::round(value), -kMost, kMost));
}

double ShortestOf(const PatternLine& line) {
    double shortest = line.dashTotal;
    for (const double dash : line.dashes) {
        const double length = std::fabs(dash);
        if (length >= line.dashTotal * kDotShare) {
            shortest = std::min(shortest, length);
        }
    }
    return shortest;
}

} // namespace

Vector DirectionAt(double degrees) {
    int quarters = 0;
    const double rest = std::remquo(degrees, 90.0, &quarters) * kRadiansPerDegree;
    const double c = std::cos(rest);
    const double s = std::sin(rest);
    switch (static_cast<unsigned>(quarters) % 4U) {
    case 0:
        return {c, s};
    case 1:
        return {0.0 - s, c};
    case 2:
        return {0.0 - c, 0.0 - s};
    default:
        return {s, 0.0 - c};
    }
}

FamilyLattice::FamilyLattice(const PatternLine& line, double frame)
    : isContinuous_(pattern::IsContinuous(line)), direction_(DirectionAt(line.angle - frame)),
      cycle_(line.dashTotal), shift_(isContinuous_ ? 0.0 : line.offset), spacing_(line.spacing),
      shortest_(isContinuous_ ? std::fabs(line.spacing) : ShortestOf(line)) {}

double FamilyLattice::CellArea() const {
    return std::fabs(cycle_ * spacing_);
}

Vector FamilyLattice::At(const LatticePoint& point) const {
    const auto lines = static_cast<double>(point.lines);
    const double along = static_cast<double>(point.cycles) * cycle_ + lines * shift_;
    const double across = lines * spacing_;
    return {along * direction_.x - across * direction_.y, along * direction_.y + across * direction_.x};
}

LatticeFit FamilyLattice::NearestTo(const Vector& place) const {
    const double along = place.x * direction_.x + place.y * direction_.y;
    const double across = place.y * direction_.x - place.x * direction_.y;
    LatticeFit fit;
    fit.point.lines = Whole(across / spacing_);
    const auto lines = static_cast<double>(fit.point.lines);
    fit.across = across - lines * spacing_;
    if (!isContinuous_) {
        const double rest = along - lines * shift_;
        fit.point.cycles = Whole(rest / cycle_);
        fit.along = rest - static_cast<double>(fit.point.cycles) * cycle_;
    }
    return fit;
}

double FamilyLattice::AcrossFor(double share) const {
    return share * std::min(std::fabs(spacing_), shortest_);
}

double FamilyLattice::ShareOf(const LatticeFit& fit) const {
    return std::max(std::fabs(fit.along) / AlongFor(1.0), std::fabs(fit.across) / AcrossFor(1.0));
}

bool IsContinuous(const PatternLine& line) {
    return line.dashes.empty() || (line.dashes.size() == 1 && line.dashes.front() > 0);
}

bool DrawsNothing(const PatternLine& line) {
    return line.dashes.size() == 1 && line.dashes.front() < 0;
}

bool IsPlaced(const PatternLine& line) {
    const std::array<double, 6> numbers{line.angle,  line.originX, line.originY,
                                        line.offset, line.spacing, line.dashTotal};
    return std::all_of(numbers.begin(), numbers.end(),
                       [](double number) { return std::fabs(number) < kLargestNumber; }) &&
           std::fabs(line.spacing) > 1.0 / kLargestNumber && line.dashTotal > 1.0 / kLargestNumber;
}

} // namespace pattern
