// Draws single shapes of SHX files as paths.
#include "StyleConversion/linetype/ShxDrawing.h"

#include <array>
#include <cstdint>

namespace LineConverter {
namespace {

using ShxUtility::Shape;
using ShxUtility::ShapesInFile;

const Shape* FindNumber(const ShapesInFile& file, std::uint16_t number) {
    const auto found = file.numberIndex.find(number);
    return found == file.numberIndex.end() ? nullptr : &file.shapes[found->second];
}

struct Substitutes {
    std::uint16_t number;
    std::array<std::uint16_t, 2> others; // to be tried in this order
};

constexpr std::array<Substitutes, 3> kSubstitutes{{
    {256, {248, 127}},
    {257, {241, 128}},
    {258, {237, 129}},
}};

} // namespace

ShxUtility::ShxResult DrawShxShape(std::wstring& path, ShxPen& pen, const Shape& shape,
                                   const ShapesInFile& file) {
    const double scale = pen.scale;
    // Required: R31
    const ShxUtility::ShxResult result =
        ShxUtility::DrawGlyph(file, shape.number, ShxUtility::kShapes, pen, path);
    pen.scale = scale;
    return result;
}

const Shape* FindGlyph(const ShapesInFile& file, wchar_t character) {
    const auto number = static_cast<std::uint16_t>(character);
    const Shape* glyph = FindNumber(file, number);
    if (!file.isVersion10) {
        return glyph;
    }
    for (const Substitutes& substitutes : kSubstitutes) {
        for (std::size_t i = 0; glyph == nullptr && number == substitutes.number && i < 2; ++i) {
            glyph = FindNumber(file, substitutes.others[i]);
        }
    }
    return glyph;
}

} // namespace LineConverter
