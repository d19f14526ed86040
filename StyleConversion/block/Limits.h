// Limits of block conversion.
#pragma once

namespace block {

/// Characters, the ending zero included, of the path of a shape file: what the host's file search is given
/// room for.
inline constexpr int kShapeFilePathLength = 1024;

/// Drawing units: the sampling of a spline is refined no further below this chord tolerance,
inline constexpr double kFinestSampling = 1e-6;
/// and is coarsened no further from this one up.
inline constexpr double kCoarsestSampling = 1.0;
/// Samples from which a spline is taken to be sampled too finely.
inline constexpr int kManySamples = 1001;

/// Radians: angles beyond this are reduced by a division and not step by step.
inline constexpr double kLongSweep = 1e6;

} // namespace block
