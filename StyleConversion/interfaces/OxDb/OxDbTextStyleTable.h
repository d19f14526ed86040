// Text styles.
#pragma once

#include "OxDb/OxDbSymbolTable.h"

#include <cstdint>

/// How texts are set: with which font, how slanted, how wide. File names and the typeface are handed out in
/// buffers that the caller releases with oxutDelBuffer; that delete[] does, too. When such a read fails, its
/// outputs are as they were.
class OXDB_API OxDbTextStyleTableRecord : public OxDbSymbolTableRecord {
public:
    ~OxDbTextStyleTableRecord() override;
    static const OxRxClass* desc();

    /// The font file or shape file; an empty text when there is none.
    virtual Oxsys::ErrorStatus fileName(wchar_t*& name) const = 0;
    /// The file for large character sets; an empty text when there is none.
    virtual Oxsys::ErrorStatus bigFontFileName(wchar_t*& name) const = 0;
    /// The typeface, an empty text for a style that uses a font file. `characterSet` and `pitchAndFamily` are
    /// the codes of the system's fonts.
    virtual Oxsys::ErrorStatus font(wchar_t*& typeface, bool& bold, bool& italic, std::int32_t& characterSet,
                                    std::int32_t& pitchAndFamily) const = 0;
    /// The style's flags, which the converters hand through.
    virtual std::int32_t flagBits() const = 0;
    /// Whether the file holds shapes rather than letters.
    virtual bool isShapeFile() const = 0;
    /// Whether letters stand below each other.
    virtual bool isVertical() const = 0;
    /// Radians, from 0 to 2π: styles that slant backward have an angle just below 2π.
    virtual double obliquingAngle() const = 0;
    /// Drawing units; 0 when the height is not fixed.
    virtual double textSize() const = 0;
    /// Width factor.
    virtual double xScale() const = 0;
};

/// The text styles of a drawing.
class OXDB_API OxDbTextStyleTable : public OxDbSymbolTable {
public:
    ~OxDbTextStyleTable() override;
    static const OxRxClass* desc();

    /// Opens the style of that name, which the caller closes. On failure `record` is null.
    virtual Oxsys::ErrorStatus getAt(const wchar_t* name, OxDbTextStyleTableRecord*& record,
                                     OxDb::OpenMode mode, bool openErased = false) const = 0;
};
