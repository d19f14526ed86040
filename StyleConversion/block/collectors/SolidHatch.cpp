// Solid hatches: one filled path of all boundary loops.
#include "OxDb/OxDbHatch.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"

void BlockConverter::CollectGeometryFromSolidHatch(const OxDbBlockTableRecord& record, const OxDbHatch& hatch,
                                                   block::BlockSymbol& symbol) const {
    std::wstring& path = symbol.StartPath().path;
    for (int i = 0; i < hatch.numLoops(); ++i) {
        int loopType = 0;
        OxArray<const OxGeCurve2d*> edges;
        OxArray<int> edgeTypes;
        OxGePoint2dArray vertices;
        OxGeDoubleArray bulges;
        if (hatch.getLoopAt(i, loopType, edges, edgeTypes) == Oxsys::eOk) {
            AppendEdgeLoop(path, edges);
        } else if (hatch.getLoopAt(i, loopType, vertices, bulges) == Oxsys::eOk) {
            AppendLoop(path, vertices, bulges);
        }
    }
    const std::wstring color = GetEntityColor(record, hatch, hatch.color(), symbol);
    if (path.empty()) {
        return;
    }
    auto graphic = symbol.MakePath();
    graphic->SetFillColor(color);
    symbol.Adopt(std::move(graphic));
}
