// Blocks drawn as their drawing shows them, where what is required is something else.
#pragma once

#include "StyleConversion/encoding/ExactNumbers.h"

namespace block {

/// The parts of a spline's extent that its faithful drawing may be off by, and those that are near enough to
/// measure others by it.
inline constexpr double kFaithfulCurves = 1e-6;
inline constexpr double kMeasuringCurves = 1e-3;

/// As long as it lives, block conversions of its thread draw what the drawing shows: no number is cut, and
/// what docs/required-behaviour.md lists is drawn as it says under "faithful". A converter itself holds no
/// more than its host knows of: its drawing, its scale and its layers.
class FaithfulInUse {
public:
    explicit FaithfulInUse(double curveTolerance = kFaithfulCurves);
    ~FaithfulInUse();
    FaithfulInUse(const FaithfulInUse&) = delete;
    FaithfulInUse& operator=(const FaithfulInUse&) = delete;

private:
    double before_;
    encoding::ExactNumbersInUse exactNumbers_;
};

/// Whether one is alive on this thread.
bool IsFaithful();
/// The part of a spline's extent that it asks for.
double FaithfulCurveTolerance();

} // namespace block
