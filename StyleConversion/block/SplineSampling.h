// Splines as points along them.
#pragma once

#include "StyleConversion/interfaces/HostNames.h"

#include <vector>

namespace block {

/// Points along the spline from its start to its end, close enough for its size and no fewer, where that is
/// possible, than the points that define it. None when the spline cannot be read or makes no curve.
std::vector<OxGePoint2d> SampleSpline(OxDbSpline& spline);

} // namespace block
