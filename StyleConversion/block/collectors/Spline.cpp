// Splines: polylines through points along them.
#include "OxDb/OxDbPolyline.h"
#include "OxDb/OxDbSpline.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/SplineSampling.h"

void BlockConverter::CollectGeometryFromSpline(const OxDbBlockTableRecord& record, const OxDbSpline& spline,
                                               block::BlockSymbol& symbol) const {
    const OxGePoint2dArray points = block::SampleSpline(spline);
    if (points.isEmpty()) {
        return;
    }
    // The polyline stays on layer "0", where its by-layer values are looked up: that is wanted so.
    OxDbPolyline polyline(static_cast<unsigned int>(points.length()));
    unsigned int index = 0;
    for (const OxGePoint2d& point : points) {
        polyline.addVertexAt(index, point, 0.0, -1.0, -1.0);
        ++index;
    }
    polyline.setColor(spline.color());
    polyline.setLineWeight(spline.lineWeight());
    polyline.setLinetype(spline.linetypeId());
    polyline.setPlinegen(true);
    CollectGeometryFromPolyline(record, polyline, symbol);
}
