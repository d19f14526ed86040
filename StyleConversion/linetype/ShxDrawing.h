// Draws single shapes of SHX files as paths.
#pragma once

#include "StyleConversion/shx/ShxUtility.h"

#include <string>

namespace LineConverter {

/// Where and how a shape is drawn. Drawing moves the point to where the pen ended.
struct ShxPen {
    double x = 0.0;
    double y = 0.0;
    /// Path units per shape unit.
    double scale = 1.0;
    /// Degrees, counter-clockwise.
    double rotation = 0.0;
    bool vertical = false;
};

/// Appends the path of one shape of `file`, with a pen of its own but for the point. After a failure `path`
/// and the point are no more than a part of it.
ShxUtility::ShxResult DrawShxShape(std::wstring& path, ShxPen& pen, const ShxUtility::Shape& shape,
                                   const ShxUtility::ShapesInFile& file);

/// The glyph of a character (a UTF-16 unit), or null. Fonts of version 1.0 have the degree, plus-minus and
/// diameter signs (codes 256 to 258) under other numbers as well.
const ShxUtility::Shape* FindGlyph(const ShxUtility::ShapesInFile& file, wchar_t character);

} // namespace LineConverter
