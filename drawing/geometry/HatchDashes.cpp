// Laying a dash pattern along a line.
#include "drawing/geometry/HatchDashes.h"

#include "drawing/geometry/Limits.h"

#include <algorithm>
#include <cmath>

namespace geometry {

DashCycle MakeDashCycle(const std::vector<double>& dashes) {
    DashCycle cycle;
    for (const double dash : dashes) {
        if (dash >= 0.0) {
            cycle.starts.push_back(cycle.length);
            cycle.lengths.push_back(dash);
        }
        cycle.length += std::fabs(dash);
    }
    return cycle;
}

namespace {

/// The part of a dash or dot between the ends; false when there is none.
bool CutToEnds(Stretch& stretch, double start, double end, double tolerance) {
    const bool isDot = stretch.start == stretch.end;
    if (isDot) {
        if (stretch.start < start - tolerance || stretch.start > end + tolerance) {
            return false;
        }
    } else if (stretch.end <= start + tolerance || stretch.start >= end - tolerance) {
        return false;
    }
    if (stretch.start <= start + tolerance) {
        stretch.start = start;
        stretch.end = isDot ? start : stretch.end;
    }
    if (stretch.end >= end - tolerance) {
        stretch.end = end;
        stretch.start = isDot ? end : stretch.start;
    }
    return true;
}

} // namespace

DashResult LayDashes(const DashCycle& cycle, double start, double end, double tolerance, std::size_t most,
                     std::vector<Stretch>& stretches) {
    const std::size_t count = cycle.starts.size();
    if (count == 0) {
        return DashResult::kOk;
    }
    if (!(cycle.length > 0.0)) {
        return DashResult::kTooMany;
    }
    // Of the cycles that fit between the ends, all but one at each side are whole.
    const double whole = (end - start) / cycle.length - 2.0;
    if (whole * static_cast<double>(count) > static_cast<double>(most)) {
        return DashResult::kTooMany;
    }
    double number = std::floor((start - tolerance) / cycle.length) - 1.0;
    if (!(std::fabs(number) <= kMaximumRepeats) || !(std::fabs(end / cycle.length) <= kMaximumRepeats)) {
        return DashResult::kTooFar;
    }
    // The first dash that may reach the start lies in the cycle before it, as a dash may be the whole cycle.
    const double within = start - tolerance - number * cycle.length - cycle.length;
    auto index = static_cast<std::size_t>(std::upper_bound(cycle.starts.begin(), cycle.starts.end(), within) -
                                          cycle.starts.begin());
    index = index == 0 ? count - 1 : index - 1;
    number = within >= cycle.starts.front() ? number + 1.0 : number;
    const std::size_t limit = stretches.size() + most;
    for (;; number += 1.0, index = 0) {
        const double base = number * cycle.length;
        for (; index < count; ++index) {
            const double from = base + cycle.starts[index];
            if (from > end + tolerance) {
                return DashResult::kOk;
            }
            Stretch stretch{from, from + cycle.lengths[index]};
            if (!CutToEnds(stretch, start, end, tolerance)) {
                continue;
            }
            if (stretches.size() == limit) {
                return DashResult::kTooMany;
            }
            stretches.push_back(stretch);
        }
    }
}

} // namespace geometry
