// What a B-spline curve of the interface holds.
#pragma once

#include "drawing/geometry/NurbsCurve.h"

struct OxGeNurbCurveData {
    geometry::NurbsCurve curve;
};
