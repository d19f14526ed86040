// The shapes and texts that a linetype carries at its dashes.
#include "StyleConversion/block/BlockConverter.h"

#include "OxDb/OxDbLinetypeTableRecord.h"
#include "StyleConversion/block/Utf16Units.h"
#include "StyleConversion/shx/ShapesInFile.h"

#include <cmath>

namespace {

// Shape units above the base line, as the font's information has it: a signed byte. 0 when there is none.
double HeightAboveBaseLine(const ShxUtility::ShapesInFile& shapes) {
    return shapes.fontInfo.empty() ? 0.0 : static_cast<double>(static_cast<std::int8_t>(shapes.fontInfo[0]));
}

} // namespace

void BlockConverter::DrawDashShape(const OxDbLinetypeTableRecord& linetype, int index, const OxGePoint2d& at,
                                   double direction, double stretch, std::wstring& shapePath) const {
    const OxDbObjectId style = linetype.shapeStyleAt(index);
    if (style.isNull()) {
        return;
    }
    ShxUtility::ShapesInFile shapes;
    if (!ParseShxId(style, shapes)) {
        return;
    }
    // Shapes stay in drawing units, whatever the scale of the path around them: the output is wanted so.
    const double cosine = std::cos(direction);
    const double sine = std::sin(direction);
    const OxGeVector2d offset = linetype.shapeOffsetAt(index);
    double x = at.x + cosine * offset.x - sine * offset.y;
    double y = at.y + sine * offset.x + cosine * offset.y;
    double scale = linetype.shapeScaleAt(index) * stretch;
    const double rotation = linetype.shapeRotationAt(index) + direction;
    if (const int number = linetype.shapeNumberAt(index); number != 0) {
        shapePath += ProcessShape(shapes, number, scale, x, y, rotation);
        return;
    }
    const wchar_t* text = nullptr;
    if (linetype.textAt(index, text) != Oxsys::eOk || text == nullptr) {
        return;
    }
    if (const double above = HeightAboveBaseLine(shapes); above != 0.0) {
        scale /= above;
    }
    // Point and scale go on from character to character, also from one that could not be drawn.
    block::ForEachUtf16Unit(
        text, [&](std::uint16_t unit) { shapePath += ProcessShape(shapes, unit, scale, x, y, rotation); });
}
