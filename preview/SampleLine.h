// Lines that a line symbol is shown along.
#pragma once

#include "preview/Box.h"
#include "preview/PathData.h"

#include <vector>

namespace preview {

/// A line of straight and round stretches, measured from its start, in pixels with y up.
class SampleLine {
public:
    struct Spot {
        Point point;
        double heading = 0.0; // radians, counter-clockwise from the x axis
    };

    explicit SampleLine(Point start) : start_(start) {}

    /// Goes on to a point in a straight line.
    void StraightTo(Point point);
    /// Goes on from the first point of a line that has no stretch yet, clockwise round a circle.
    void ArcTo(Point center, Point end);

    double Length() const { return length_; }
    /// Before the start and behind the end the line goes straight on.
    Spot At(double distance) const;
    /// Draws the line between two distances, of which the first is not the greater one.
    void Append(PathData& data, const Placement& placement, double from, double to, bool move) const;

private:
    struct Stretch {
        double start = 0.0; // the distance at which it begins
        double length = 0.0;
        Point point; // there
        double heading = 0.0;
        double curvature = 0.0; // 1 / radius, positive when it turns left

        Spot At(double along) const;
    };

    static void AppendStretch(PathData& data, const Placement& placement, const Stretch& stretch, double from,
                              double to);

    Point start_;
    double length_ = 0.0;
    std::vector<Stretch> stretches_;
};

} // namespace preview
