// What a text style says about its fonts.
#pragma once

#include "StyleConversion/Export.h"

#include <cstdint>
#include <string>

namespace LineConverter {

/// A text style. It uses the TrueType typeface where one is named, else the SHX font file.
struct STYLECONVERSION_API FontInfo {
    /// Made empty, or with the values of another.
    FontInfo();
    ~FontInfo();
    FontInfo(const FontInfo& other);
    FontInfo& operator=(const FontInfo& other);

    /// The style's SHX font file.
    std::wstring fileName;
    /// The style's SHX file for large character sets; not used.
    std::wstring bigFontFileName;
    /// The TrueType typeface; empty for a style with an SHX font.
    std::wstring typeface;
    /// Whether the typeface is drawn bold.
    bool bold = false;
    /// Whether the typeface is drawn italic.
    bool italic = false;
    /// Whether this is not a style at all but an entry for a shape file.
    bool isShapeFile = false;
    /// Whether text runs from top to bottom, where the font can.
    bool isVertical = false;
    /// The fixed text height in the units of the dashes; 0 when it is not fixed.
    double textSize = 0.0;
    /// The factor on the text's width.
    double xScale = 0.0;
    /// Degrees by which characters lean; negative for those that lean back.
    double obliquingAngle = 0.0;
    /// The style's generation flags, as the drawing holds them.
    std::int32_t flagBits = 0;
};

} // namespace LineConverter
