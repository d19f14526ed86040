#include "styles/UprightCell.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace styles {
namespace {

// Sides that are tried: a step may be as small as it likes.
constexpr int kMostTries = 100'000;
// Cosines of right angles come out as this or less.
constexpr double kRightAngle = 1e-12;

// How far the end of a side of that length is from the nearest step.
double ErrorOf(const Repetition& repetition, double length) {
    const double along = length * repetition.share;
    return std::fabs(along - std::round(along / repetition.step) * repetition.step);
}

double WorstError(const std::vector<Repetition>& repetitions, double length) {
    double worst = 0.0;
    for (const Repetition& repetition : repetitions) {
        worst = std::max(worst, ErrorOf(repetition, length));
    }
    return worst;
}

// The longest of the periods of which a side can hold one.
double LongestPeriod(const std::vector<Repetition>& repetitions, double longest) {
    double period = 0.0;
    for (const Repetition& repetition : repetitions) {
        const double own = repetition.step / repetition.share;
        if (own <= longest) {
            period = std::max(period, own);
        }
    }
    return period;
}

void AddRepetition(double share, double step, std::vector<Repetition>& repetitions) {
    if (std::fabs(share) > kRightAngle) {
        repetitions.push_back({std::fabs(share), step});
    }
}

} // namespace

std::optional<CellSide> CommonSide(const std::vector<Repetition>& repetitions, double longest,
                                   double tolerance) {
    if (repetitions.empty()) {
        return CellSide{};
    }
    const double period = LongestPeriod(repetitions, longest);
    if (!(period > 0.0)) {
        return std::nullopt;
    }
    std::optional<CellSide> best;
    for (int count = 1; count <= kMostTries && count * period <= longest; ++count) {
        const CellSide side{count * period, WorstError(repetitions, count * period)};
        if (!best || side.error < best->error) {
            best = side;
        }
        if (side.error <= tolerance) {
            return side;
        }
    }
    return best;
}

std::optional<UprightCell> SmallestUprightCell(const std::vector<Tiling>& tilings, double longest,
                                               double tolerance) {
    std::vector<Repetition> across;
    std::vector<Repetition> upright;
    for (const Tiling& tiling : tilings) {
        const double radians = tiling.angle * (std::numbers::pi / 180);
        const double cosine = std::cos(radians);
        const double sine = std::sin(radians);
        const bool hasPieces = !tiling.strokes.empty() || !tiling.dots.empty();
        // Lines without an end repeat across their direction alone.
        if (hasPieces || !tiling.columns.empty()) {
            AddRepetition(cosine, tiling.stepX, across);
            AddRepetition(sine, tiling.stepX, upright);
        }
        if (hasPieces || !tiling.rows.empty()) {
            AddRepetition(sine, tiling.stepY, across);
            AddRepetition(cosine, tiling.stepY, upright);
        }
    }
    const auto width = CommonSide(across, longest, tolerance);
    const auto height = CommonSide(upright, longest, tolerance);
    return width && height ? std::optional(UprightCell{*width, *height}) : std::nullopt;
}

} // namespace styles
