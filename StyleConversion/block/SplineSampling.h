// Splines as points along them.
#pragma once

#include "OxDb/OxDbSpline.h"

namespace block {

/// Points along the spline from its start to its end, close enough for its size and no fewer, where that is
/// possible, than the points that define it. None when the spline cannot be read or makes no curve.
OxGePoint2dArray SampleSpline(const OxDbSpline& spline);

} // namespace block
