// Draws single shapes of SHX files as paths.
#pragma once

#include "StyleConversion/shx/ShxUtility.h"

#include <string>

namespace LineConverter {

struct ShxPen : ShxUtility::GlyphPen {};

/// Appends the path of one shape of `file` as linetypes draw it: the point goes on to the next shape, the
/// scale does not. After a failure `path` and the point are no more than a part of it.
ShxUtility::ShxResult DrawShxShape(std::wstring& path, ShxPen& pen, const ShxUtility::Shape& shape,
                                   const ShxUtility::ShapesInFile& file);

/// The glyph of a character (a UTF-16 unit), or null. Fonts of version 1.0 have the degree, plus-minus and
/// diameter signs (codes 256 to 258) under other numbers as well.
const ShxUtility::Shape* FindGlyph(const ShxUtility::ShapesInFile& file, wchar_t character);

} // namespace LineConverter
