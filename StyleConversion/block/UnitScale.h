// Millimetres per drawing unit.
#pragma once

#include "StyleConversion/interfaces/HostNames.h"

namespace block {

/// The number of units that have a factor: codes 0 to 20.
inline constexpr int kUnitCount = 21;

// Required: R4
inline constexpr double kMillimetres[kUnitCount] = {
    1000.0,                 // undefined: as metres
    25.4,                   // inches
    304.79999999999995,     // feet
    1609344.0,              // miles
    1.0,                    // millimetres
    10.0,                   // centimetres
    1000.0,                 // metres
    1000000.0,              // kilometres
    2.5399999999999997e-05, // microinches
    0.0254,                 // mils
    914.4,                  // yards
    1e-07,                  // angstroms
    1e-06,                  // nanometres
    0.001,                  // microns
    100.0,                  // decimetres
    10000.0,                // decametres
    100000.0,               // hectometres
    1e12,                   // gigametres
    1.5e14,                 // astronomical units
    9.46e18,                // light years
    3.09e19,                // parsecs
};

/// False for the code of a block or drawing without a unit.
inline bool HasUnit(OxDb::UnitsValue unit) {
    return static_cast<int>(unit) != 0;
}

/// Millimetres per unit; null for a code that stands for no unit. A drawing without a unit counts as one in
/// metres.
inline const double* MillimetresPer(OxDb::UnitsValue unit) {
    const auto code = static_cast<int>(unit);
    return code >= 0 && code < kUnitCount ? &kMillimetres[code] : nullptr;
}

} // namespace block
