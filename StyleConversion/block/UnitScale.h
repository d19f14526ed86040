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

/// The exact ones of those that are rounded above, and those of the units that have none there.
inline double ExactMillimetres(int code) {
    switch (code) {
    case 2:
        return 304.8;
    case 8:
        return 2.54e-5;
    case 18:
        return 1.495978707e14;
    case 19:
        return 9.4607304725808e18;
    case 20:
        return 3.0856775814913673e19;
    case 21: // feet, inches, yards and miles of land surveys
        return 1200000.0 / 3937.0;
    case 22:
        return 100000.0 / 3937.0;
    case 23:
        return 3600000.0 / 3937.0;
    case 24:
        return 5280.0 * 1200000.0 / 3937.0;
    default:
        return code >= 0 && code < kUnitCount ? kMillimetres[code] : 1.0;
    }
}

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
