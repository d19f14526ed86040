// A straight segment with the dashes of its linetype.
#include "StyleConversion/block/BlockConverter.h"

#include "StyleConversion/block/Angles.h"
#include "StyleConversion/block/DashFit.h"
#include "StyleConversion/encoding/ScaledPath.h"

void BlockConverter::ParseDashLine(const OxDbLinetypeTableRecord* linetype, const OxGePoint2d& start,
                                   const OxGePoint2d& end, std::wstring& path,
                                   std::wstring& shapePath) const {
    const auto lineTo = [&](const OxGePoint2d& point) { AppendPoint(path, encoding::kLine, point); };
    AppendPoint(path, path.empty() ? encoding::kFirstMove : encoding::kMove, start);
    if (!block::HasDashes(linetype)) {
        lineTo(end);
        return;
    }
    const block::DashFit fit = block::FitDashes(*linetype, start.distanceTo(end));
    const double angle = block::CalcLineAngle(start, end);
    const block::Direction direction(angle);
    OxGePoint2d current = direction.From(start, fit.lead);
    lineTo(current);
    // The lead stands in for the first dash also where that is a gap or a dot; the line then ends short by
    // its length. The output is wanted so.
    int first = 1;
    for (std::int32_t repetition = 0; repetition < fit.repetitions; ++repetition) {
        for (int i = first; i < linetype->numDashes(); ++i) {
            const double length = linetype->dashLengthAt(i);
            const bool gap = length < 0.0;
            current = direction.From(current, gap ? -length : length);
            AppendPoint(path, gap ? encoding::kMove : encoding::kLine, current);
            DrawDashShape(*linetype, i, current, angle, 1.0, shapePath);
        }
        first = 0;
    }
    lineTo(direction.From(current, fit.lead));
}
