// From a hatch's boundary and pattern to its lines.
#pragma once

#include "drawing/Areas.h"

namespace drawing {

/// Cuts the families' lines to the loops by the even-odd rule and applies their dashes: in family order, then
/// from the lowest line up, then along it. More than `most` lines fail with eTooManyHatchLines.
Oxsys::ErrorStatus EvaluatePattern(const std::vector<HatchLoop>& loops,
                                   const std::vector<HatchFamily>& pattern, std::size_t most,
                                   std::vector<HatchLine>& lines);

} // namespace drawing
