// Multi-polygons: filled and stroked.
#include "OxDb/OxDbMPolygon.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/encoding/ValueForms.h"

void BlockConverter::CollectGeometryFromMPolygon(const OxDbBlockTableRecord& record,
                                                 const OxDbMPolygon& polygon,
                                                 block::BlockSymbol& symbol) const {
    std::wstring& path = symbol.StartPath().path;
    for (int i = 0; i < polygon.numMPolygonLoops(); ++i) {
        OxGePoint2dArray vertices;
        OxGeDoubleArray bulges;
        if (polygon.getMPolygonLoopAt(i, vertices, bulges) == Oxsys::eOk) {
            AppendLoop(path, vertices, bulges);
        }
    }
    const std::wstring fillColor = GetEntityColor(record, polygon, polygon.fillColor(), symbol);
    const std::wstring lineColor = GetEntityColor(record, polygon, polygon.color(), symbol);
    const std::wstring lineWeight = GetEntityLineweight(record, polygon, symbol);
    if (path.empty()) {
        return;
    }
    auto graphic = symbol.MakePath();
    graphic->SetFillColor(fillColor);
    graphic->SetLineColor(lineColor);
    graphic->SetLineWeight(lineWeight);
    graphic->SetLineWeightScalable(encoding::BooleanString(false));
    symbol.Adopt(std::move(graphic));
}
