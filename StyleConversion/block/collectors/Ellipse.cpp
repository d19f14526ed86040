// Ellipses and their arcs, which are always solid.
#include "OxDb/OxDbCurves.h"
#include "StyleConversion/block/Angles.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/Limits.h"
#include "StyleConversion/encoding/ScaledPath.h"

#include <cmath>

namespace {

// Brought into 0 to 2 pi. Step by step, since the digits of that are wanted; a sweep so long that the steps
// would not end (or would change nothing) is divided first. What is not finite becomes NaN.
double WithinOneTurn(double sweep) {
    if (std::fabs(sweep) > block::kLongSweep) {
        sweep = std::fmod(sweep, block::kTwoPi);
    }
    while (sweep < 0.0) {
        sweep += block::kTwoPi;
    }
    while (sweep > block::kTwoPi) {
        sweep -= block::kTwoPi;
    }
    return sweep;
}

} // namespace

void BlockConverter::CollectGeometryFromEllipse(const OxDbBlockTableRecord& record,
                                                const OxDbEllipse& ellipse,
                                                block::BlockSymbol& symbol) const {
    std::wstring& path = symbol.StartPath().path;
    const OxGeVector3d major = ellipse.majorAxis();
    const double radiusX = major.length();
    const double radiusY = ellipse.minorAxis().length();
    const double rotation = std::atan2(major.y, major.x) * 180.0 / block::kPi;
    OxGePoint3d start;
    OxGePoint3d end;
    ellipse.getStartPoint(start);
    ellipse.getEndPoint(end);
    const OxGePoint3d center = ellipse.center();

    AppendPoint(path, encoding::kFirstMove, block::InPlane(start));
    if (ellipse.isClosed()) {
        const OxGePoint2d opposite{2.0 * center.x - start.x, 2.0 * center.y - start.y};
        // Both halves carry the large-arc flag: the output is wanted so.
        AppendArcString(&path, radiusX, radiusY, rotation, true, true, opposite);
        AppendArcString(&path, radiusX, radiusY, rotation, true, true, block::InPlane(start));
    } else {
        const double sweep = WithinOneTurn(ellipse.endAngle() - ellipse.startAngle());
        AppendArcString(&path, radiusX, radiusY, rotation, sweep >= block::kPi, false, block::InPlane(end));
    }
    FinishStroke(record, ellipse, symbol);
}
