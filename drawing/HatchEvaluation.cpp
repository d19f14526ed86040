// From a hatch's boundary and pattern to its lines.
#include "drawing/HatchEvaluation.h"

namespace drawing {

Oxsys::ErrorStatus EvaluatePattern(const std::vector<HatchLoop>& /*loops*/,
                                   const std::vector<HatchFamily>& /*pattern*/,
                                   std::vector<HatchLine>& /*lines*/) {
    return Oxsys::eNotImplemented;
}

} // namespace drawing
