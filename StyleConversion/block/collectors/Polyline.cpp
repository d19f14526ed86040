// Lightweight polylines.
#include "OxDb/OxDbPolyline.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/OpenLinetype.h"
#include "StyleConversion/block/PolylineSegment.h"
#include "StyleConversion/block/PolylineWalk.h"

namespace {

template <class Use>
void ForEachSegment(const OxDbPolyline& polyline, Use use) {
    const unsigned int count = block::CountSegments(polyline);
    for (unsigned int i = 0; i < count; ++i) {
        block::PolylineSegment segment;
        if (block::ReadSegment(polyline, i, segment)) {
            use(segment);
        }
    }
}

} // namespace

void BlockConverter::CollectGeometryFromPolyline(const OxDbBlockTableRecord& record,
                                                 const OxDbPolyline& polyline,
                                                 block::BlockSymbol& symbol) const {
    block::EntityPath& geometry = symbol.StartPath();
    block::Linetype linetype(polyline);
    if (polyline.hasPlinegen() && block::HasDashes(linetype.Get())) {
        double length = 0.0;
        ForEachSegment(polyline, [&](const block::PolylineSegment& segment) { length += segment.length; });
        PolylineWalk walk(*this, *linetype.Get(), length, block::CountSegments(polyline), geometry);
        ForEachSegment(polyline, [&](const block::PolylineSegment& segment) { walk.Add(segment); });
    } else {
        ForEachSegment(polyline, [&](const block::PolylineSegment& segment) {
            if (segment.isArc) {
                const auto& [center, radius, clockwise] = segment.travel;
                ParseDashArc(linetype.Get(), segment.start, segment.end, center, radius, segment.sweep,
                             clockwise, geometry.path, geometry.shapes);
            } else {
                ParseDashLine(linetype.Get(), segment.start, segment.end, geometry.path, geometry.shapes);
            }
        });
    }
    linetype.Close();
    FinishStroke(record, polyline, symbol);
}
