// A circular arc with the dashes of its linetype.
#include "StyleConversion/block/BlockConverter.h"

#include "StyleConversion/block/Angles.h"
#include "StyleConversion/block/DashFit.h"
#include "StyleConversion/encoding/ScaledPath.h"

#include <cmath>

void BlockConverter::ParseDashArc(const OxDbLinetypeTableRecord* linetype, const OxGePoint2d& start,
                                  const OxGePoint2d& end, const OxGePoint2d& center, double radius,
                                  double sweep, bool clockwise, std::wstring& path,
                                  std::wstring& shapePath) const {
    const auto arcTo = [&](const OxGePoint2d& point, double step) {
        AppendArcString(&path, radius, radius, 0.0, step >= block::kPi, clockwise, point);
    };
    AppendPoint(path, path.empty() ? encoding::kFirstMove : encoding::kMove, start);
    if (!block::HasDashes(linetype)) {
        arcTo(end, sweep);
        return;
    }
    const block::DashFit fit = block::FitDashes(*linetype, radius * sweep);
    const block::ArcTravel travel{center, radius, clockwise};
    const double lead = fit.lead / radius;
    OxGePoint2d current = travel.From(start, lead);
    arcTo(current, lead);
    int first = 1; // The lead stands in for the first dash, whatever kind that is.
    for (std::int32_t repetition = 0; repetition < fit.repetitions; ++repetition) {
        for (int i = first; i < linetype->numDashes(); ++i) {
            const double length = linetype->dashLengthAt(i);
            const double step = std::fabs(length) / radius;
            current = travel.From(current, step);
            if (length <= 0.0) {
                AppendPoint(path, length < 0.0 ? encoding::kMove : encoding::kLine, current);
            } else {
                arcTo(current, step);
            }
            if (!linetype->shapeStyleAt(i).isNull()) {
                // A quarter turn to the left also where the arc runs clockwise: the output is wanted so.
                const double direction = block::CalcLineAngle(center, current) + block::kHalfPi;
                DrawDashShape(*linetype, i, current, direction, 1.0, shapePath);
            }
        }
        first = 0;
    }
    arcTo(travel.From(current, lead), lead);
}
