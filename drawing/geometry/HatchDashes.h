// The dashes of a hatch family, laid along one of its lines.
#pragma once

#include <cstddef>
#include <vector>

namespace geometry {

/// What is drawn of one length of the pattern. Distances in drawing units from the pattern's start.
struct DashCycle {
    double length = 0.0;         ///< of the whole pattern, gaps included; 0 for dots without gaps
    std::vector<double> starts;  ///< of the drawn dashes and dots, ascending
    std::vector<double> lengths; ///< of the same; 0 for a dot
};

/// Positive a dash, negative a gap, zero a dot.
DashCycle MakeDashCycle(const std::vector<double>& dashes);

/// A drawn stretch of a line, by distances from the line's origin; start = end for a dot.
struct Stretch {
    double start = 0.0;
    double end = 0.0;
};

enum class DashResult : unsigned char {
    kOk,
    kTooMany, ///< more than the limit of stretches
    kTooFar,  ///< so many pattern lengths from the origin that the phase is lost
};

/// Appends what the pattern draws between `start` and `end` to `stretches`, at most `most` more of them. A
/// dash is cut at the ends; what is left of one after the cut counts only when longer than `tolerance`, and
/// an end within `tolerance` of a stretch's own end takes its place. Dots count up to both ends.
DashResult LayDashes(const DashCycle& cycle, double start, double end, double tolerance, std::size_t most,
                     std::vector<Stretch>& stretches);

} // namespace geometry
