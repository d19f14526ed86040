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
    ShxUtility::ShapeInstructions instructions;
    // Two-byte subshape numbers are read as one byte here even in a unifont file: the output is wanted so.
    const ShxUtility::ShxResult decoded = ShxUtility::DecodeShape(
        instructions, shape.data.data(), static_cast<std::uint16_t>(shape.data.size()), ShxUtility::kShapes);
    if (decoded != ShxUtility::kSuccess) {
        return decoded;
    }
    double scale = pen.scale;
    ShxUtility::PositionStack positionStack;
    std::vector<std::uint16_t> activeSubshapes;
    bool penDown = true;
    return ShxUtility::DrawShape(path, pen.x, pen.y, scale, positionStack, activeSubshapes, penDown,
                                 instructions, file, pen.rotation, pen.vertical);
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
