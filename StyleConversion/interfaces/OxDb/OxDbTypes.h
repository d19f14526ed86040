// Enumerations of the drawing database.
#pragma once

#include <cstdint>

namespace OxDb {

/// What an object is opened for.
enum OpenMode : std::int32_t {
    kForRead = 0,
    kForWrite = 1,
    kForNotify = 2,
};

/// Line weight code. A value from 0 up is a width in hundredths of a millimetre; any such value may occur.
enum LineWeight : std::int32_t {
    kLnWtByLayer = -1,
    kLnWtByBlock = -2,
    kLnWtByLwDefault = -3,
    kLnWt000 = 0,
};

/// Unit of lengths in a drawing, or of a block that is inserted into one.
enum UnitsValue : std::int32_t {
    kUnitsUndefined = 0,
    kUnitsInches = 1,
    kUnitsFeet = 2,
    kUnitsMiles = 3,
    kUnitsMillimeters = 4,
    kUnitsCentimeters = 5,
    kUnitsMeters = 6,
    kUnitsKilometers = 7,
    kUnitsMicroinches = 8,
    kUnitsMils = 9,
    kUnitsYards = 10,
    kUnitsAngstroms = 11,
    kUnitsNanometers = 12,
    kUnitsMicrons = 13,
    kUnitsDecimeters = 14,
    kUnitsDekameters = 15,
    kUnitsHectometers = 16,
    kUnitsGigameters = 17,
    kUnitsAstronomical = 18,
    kUnitsLightYears = 19,
    kUnitsParsecs = 20,
};

/// Where a single-line text sits along its base line.
enum TextHorzMode : std::int32_t {
    kTextLeft = 0,
    kTextCenter = 1,
    kTextRight = 2,
    kTextAlign = 3,
    kTextMid = 4,
    kTextFit = 5,
};

/// Where a single-line text sits across its base line.
enum TextVertMode : std::int32_t {
    kTextBase = 0,
    kTextBottom = 1,
    kTextVertMid = 2,
    kTextTop = 3,
};

} // namespace OxDb
