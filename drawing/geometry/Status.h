// How an operation of the plane geometry ended.
#pragma once

namespace geometry {

/// Anything but kOk is a refusal: the operation's result is then empty or as it was.
enum class Status {
    kOk,
    kNotFinite,       ///< a number is infinite or not a number
    kOutOfRange,      ///< a number is too large to compute with (see Limits.h)
    kBadDegree,       ///< the degree is less than 1 or above the limit
    kTooFewPoints,    ///< fewer points than the degree, or the operation, needs
    kBadKnotCount,    ///< the number of knots fits neither form of knot vector
    kDecreasingKnots, ///< a knot is less than the one before it
    kEmptyInterval,   ///< the knots leave the curve no parameter interval
    kBadWeights, ///< the number of weights is wrong, or a weight is not positive, or they are too far apart
    kDiscontinuous,  ///< a knot repeated more often than the degree tears the curve apart
    kParallelOffset, ///< a hatch family's offset has no component across its lines
    kTooManyLines,   ///< a hatch would give more lines than the limit
};

} // namespace geometry
