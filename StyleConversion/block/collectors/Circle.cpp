// Circles, with a whole number of repetitions of the linetype's pattern around them.
#include "OxDb/OxDbCurves.h"
#include "StyleConversion/block/Angles.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/OpenLinetype.h"
#include "StyleConversion/encoding/IntegerConversion.h"
#include "StyleConversion/encoding/ScaledPath.h"

void BlockConverter::CollectGeometryFromCircle(const OxDbBlockTableRecord& record, const OxDbCircle& circle,
                                               block::BlockSymbol& symbol) const {
    auto& [path, shapes] = symbol.StartPath();
    const OxGePoint2d center = block::InPlane(circle.center());
    const double radius = circle.radius();
    const OxGePoint2d rightmost{center.x + radius, center.y};
    block::Linetype linetype(circle);
    AppendPoint(path, encoding::kFirstMove, rightmost);
    if (linetype.Get() != nullptr && linetype.Get()->numDashes() >= 1 &&
        radius * 2.0 * block::kPi > linetype.Get()->patternLength()) {
        DashCircle(*linetype.Get(), center, radius, path, shapes);
    } else {
        AppendArcString(&path, radius, radius, 0.0, false, true, {center.x - radius, center.y});
        AppendArcString(&path, radius, radius, 0.0, false, true, rightmost);
    }
    linetype.Close();
    FinishStroke(record, circle, symbol);
}

void BlockConverter::DashCircle(const OxDbLinetypeTableRecord& linetype, const OxGePoint2d& center,
                                double radius, std::wstring& path, std::wstring& shapePath) const {
    const double circumference = radius * 2.0 * block::kPi;
    const double patternLength = linetype.patternLength();
    // Without a pattern length the conversion gives the lowest integer, that is no repetition at all.
    const std::int32_t repetitions = encoding::ToInt32(circumference / patternLength + 0.5);
    const double stretch = circumference / repetitions / patternLength;
    const block::ArcTravel travel{center, radius, false};
    OxGePoint2d current{center.x + radius, center.y};
    for (std::int32_t repetition = 0; repetition < repetitions; ++repetition) {
        for (int i = 0; i < linetype.numDashes(); ++i) {
            const double length = linetype.dashLengthAt(i) * stretch;
            if (length > 0.0) {
                const double step = length / radius;
                current = travel.From(current, step);
                // Sweep flag 0, unlike the solid circle's 1: the output is wanted so.
                AppendArcString(&path, radius, radius, 0.0, step >= block::kPi, false, current);
            } else {
                current = travel.From(current, -length / radius);
                AppendPoint(path, length < 0.0 ? encoding::kMove : encoding::kLine, current);
            }
            if (!linetype.shapeStyleAt(i).isNull()) {
                const double tangent = block::CalcLineAngle(center, current) + block::kHalfPi;
                DrawDashShape(linetype, i, current, tangent, stretch, shapePath);
            }
        }
    }
}
