// Millimetres per drawing unit.
#pragma once

#include "OxDb/OxDbTypes.h"

namespace block {

/// The number of units that have a factor: codes 0 to 20.
inline constexpr int kUnitCount = 21;

/// Millimetres per unit; null for a code that stands for no unit. A drawing without a unit counts as one in
/// metres.
const double* MillimetresPer(OxDb::UnitsValue unit);

} // namespace block
