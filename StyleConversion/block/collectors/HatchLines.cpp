// Hatches: the choice between the two kinds, and those of pattern lines.
#include "OxDb/OxDbHatch.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/encoding/ScaledPath.h"

void BlockConverter::CollectGeometryFromHatch(const OxDbBlockTableRecord& record, OxDbHatch& hatch,
                                              block::BlockSymbol& symbol) const {
    if (hatch.isSolidFill()) {
        CollectGeometryFromSolidHatch(record, hatch, symbol);
    } else {
        CollectGeometryFromNonSolidHatch(record, hatch, symbol);
    }
}

void BlockConverter::CollectGeometryFromNonSolidHatch(const OxDbBlockTableRecord& record, OxDbHatch& hatch,
                                                      block::BlockSymbol& symbol) const {
    if (hatch.evaluateHatch(true) != Oxsys::eOk) {
        return;
    }
    const int count = hatch.numHatchLines();
    if (count < 1) {
        return;
    }
    std::wstring& path = symbol.StartPath().path;
    for (int i = 0; i < count; ++i) {
        OxGePoint2d start;
        OxGePoint2d end;
        if (hatch.getHatchLineDataAt(i, start, end) != Oxsys::eOk) {
            continue;
        }
        AppendPoint(path, path.empty() ? encoding::kFirstMove : encoding::kMove, start);
        AppendPoint(path, encoding::kLine, end);
    }
    const std::wstring color = GetEntityColor(record, hatch, hatch.color(), symbol);
    if (path.empty()) {
        return;
    }
    auto graphic = symbol.MakePath();
    graphic->SetLineColor(color);
    symbol.Adopt(std::move(graphic));
}
