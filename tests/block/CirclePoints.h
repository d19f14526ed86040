// Points of circles as text, worked out from the angle in one step.
#pragma once

#include "StyleConversion/encoding/TrimmedNumber.h"

#include <cmath>
#include <string>

namespace blocktest {

/// "x,y" of the point at `degrees`.
inline std::wstring OnCircle(double centerX, double centerY, double radius, double degrees) {
    const double angle = degrees * 3.14159265358979323846 / 180.0;
    return encoding::Double2TrimmedString(centerX + radius * std::cos(angle)) + L"," +
           encoding::Double2TrimmedString(centerY + radius * std::sin(angle));
}

} // namespace blocktest
