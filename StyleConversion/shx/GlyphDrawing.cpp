// Shapes as path text.
#include "StyleConversion/shx/GlyphDrawing.h"

#include "StyleConversion/shx/PathText.h"

namespace ShxUtility {

ShxResult DrawGlyph(const ShapesInFile& file, std::uint16_t number, ShapeFileKind numbers, GlyphPen& pen,
                    std::wstring& path) {
    PathText text(path);
    return DrawGlyph(file, number, numbers, pen, text);
}

} // namespace ShxUtility
