// Enumerations of the drawing database.
#pragma once

#include <cstdint>

namespace OxDb {

/// What an object is opened for.
enum OpenMode : std::int32_t {
    kForRead = 0,   ///< To be read, by any number at a time.
    kForWrite = 1,  ///< To be changed.
    kForNotify = 2, ///< To be told of changes.
};

/// Line weight code. A value from 0 up is a width in hundredths of a millimetre; any such value may occur.
enum LineWeight : std::int32_t {
    kLnWtByLayer = -1,     ///< The width of the layer.
    kLnWtByBlock = -2,     ///< The width of the insert.
    kLnWtByLwDefault = -3, ///< The default width.
    kLnWt000 = 0,          ///< The thinnest line.
};

/// Unit of lengths in a drawing, or of a block that is inserted into one.
enum UnitsValue : std::int32_t {
    kUnitsUndefined = 0,     ///< No unit.
    kUnitsInches = 1,        ///< 25.4 mm.
    kUnitsFeet = 2,          ///< 304.8 mm.
    kUnitsMiles = 3,         ///< 1609344 mm.
    kUnitsMillimeters = 4,   ///< 1 mm.
    kUnitsCentimeters = 5,   ///< 10 mm.
    kUnitsMeters = 6,        ///< 1000 mm.
    kUnitsKilometers = 7,    ///< 1e6 mm.
    kUnitsMicroinches = 8,   ///< 2.54e-5 mm.
    kUnitsMils = 9,          ///< 0.0254 mm.
    kUnitsYards = 10,        ///< 914.4 mm.
    kUnitsAngstroms = 11,    ///< 1e-7 mm.
    kUnitsNanometers = 12,   ///< 1e-6 mm.
    kUnitsMicrons = 13,      ///< 0.001 mm.
    kUnitsDecimeters = 14,   ///< 100 mm.
    kUnitsDekameters = 15,   ///< 1e4 mm.
    kUnitsHectometers = 16,  ///< 1e5 mm.
    kUnitsGigameters = 17,   ///< 1e12 mm.
    kUnitsAstronomical = 18, ///< Taken as 1.5e14 mm.
    kUnitsLightYears = 19,   ///< Taken as 9.46e18 mm.
    kUnitsParsecs = 20,      ///< Taken as 3.09e19 mm.
};

/// Where a single-line text sits along its base line.
enum TextHorzMode : std::int32_t {
    kTextLeft = 0,   ///< Starts at the point.
    kTextCenter = 1, ///< Centred on it.
    kTextRight = 2,  ///< Ends at it.
    kTextAlign = 3,  ///< Fills the way between two points, its height with it.
    kTextMid = 4,    ///< Centred both ways.
    kTextFit = 5,    ///< Fills the way between two points at its height.
};

/// Where a single-line text sits across its base line.
enum TextVertMode : std::int32_t {
    kTextBase = 0,    ///< The base line is at the point.
    kTextBottom = 1,  ///< The bottom of the letters is.
    kTextVertMid = 2, ///< Their middle is.
    kTextTop = 3,     ///< Their top is.
};

} // namespace OxDb
