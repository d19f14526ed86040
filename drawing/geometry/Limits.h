// The limits of the plane geometry, each with its unit and its reason.
#pragma once

#include <cstddef>

namespace geometry {

/// Largest degree of a curve. Time per point grows with its square; drawings stop well below 30.
inline constexpr int kMaximumDegree = 255;

/// Largest magnitude of a coordinate, in drawing units: squares of differences stay far from overflow.
inline constexpr double kMaximumCoordinate = 1e100;

/// Largest ratio between two weights of one curve: beyond it a curve runs most of its way in a part of its
/// interval that doubles cannot divide any more.
inline constexpr double kMaximumWeightRatio = 1e9;

/// Distance in drawing units below which the ends of a curve count as the same point.
inline constexpr double kSamePoint = 1e-10;

/// How far, in the knots' unit, a knot may lie below the one before it and still count as equal to it.
inline constexpr double kSameKnot = 1e-9;

/// Samples of one curve: at least this many are allowed, and kSamplesPerPiece more for each polynomial piece.
/// Beyond that the tolerance asked for is below anything that can be drawn, and is raised.
inline constexpr std::size_t kSamplesPerCurve = 65536;
inline constexpr std::size_t kSamplesPerPiece = 64;

/// Crossings of one family's lines with boundary edges that are looked at before a hatch is given up, for
/// each line that it may have. Two make a line, so only loops on top of each other, or very sparse dots,
/// reach it below the limit of lines.
inline constexpr double kHatchCrossingsPerLine = 8.0;

/// Largest distance from a family's base point, in spacings or pattern lengths: beyond it doubles no longer
/// tell where between two lines, or in which part of the pattern, a point lies.
inline constexpr double kMaximumRepeats = 1e12;

} // namespace geometry
