// Checking the numbers of a hatch.
#pragma once

#include "drawing/geometry/Hatch.h"

#include <vector>

namespace geometry {

/// kNotFinite or kOutOfRange for the first number that is so. `magnitude` becomes the largest coordinate, in
/// drawing units and without sign, that the loops can reach.
Status CheckHatchNumbers(const std::vector<HatchLoop>& loops, const std::vector<HatchFamily>& families,
                         double& magnitude);

} // namespace geometry
