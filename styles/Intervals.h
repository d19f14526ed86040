// Stretches of a period, joined where they touch, its end and its beginning included.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

namespace styles {

struct Interval {
    double start = 0.0; // from 0 to below the period
    double end = 0.0;   // may lie behind the period's end

    friend bool operator==(const Interval&, const Interval&) = default;
};

/// How far apart, as a part of the period, two ends are that touch: decimals of files end somewhere.
inline constexpr double kTouching = 1e-9;

/// Where a place lies within its period.
inline double PhaseOf(double place, double period) {
    const double phase = place - std::floor(place / period) * period;
    return phase < period * (1 - kTouching) ? phase : 0.0;
}

/// Joins intervals of a period, in any order. What fills all of it becomes the one from 0 to the period.
inline std::vector<Interval> Joined(std::vector<Interval> intervals, double period) {
    const double touch = period * kTouching;
    for (Interval& interval : intervals) {
        const double length = interval.end - interval.start;
        interval.start = PhaseOf(interval.start, period);
        interval.end = interval.start + length;
    }
    std::sort(intervals.begin(), intervals.end(),
              [](const Interval& a, const Interval& b) { return a.start < b.start; });
    std::vector<Interval> joined;
    for (const Interval& interval : intervals) {
        if (!joined.empty() && interval.start <= joined.back().end + touch) {
            joined.back().end = std::max(joined.back().end, interval.end);
        } else {
            joined.push_back(interval);
        }
    }
    // The last one may reach over the first ones of the next period, and so on all the way round.
    std::size_t swallowed = 0;
    while (swallowed + 1 < joined.size() && joined[swallowed].start + period <= joined.back().end + touch) {
        joined.back().end = std::max(joined.back().end, joined[swallowed].end + period);
        ++swallowed;
    }
    joined.erase(joined.begin(), joined.begin() + static_cast<std::ptrdiff_t>(swallowed));
    if (joined.size() == 1 && joined.front().end - joined.front().start >= period - touch) {
        joined.front() = {0.0, period};
    }
    return joined;
}

} // namespace styles
