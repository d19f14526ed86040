// The end of every stroked entity: colour, line weight, and the path itself.
#include "StyleConversion/block/BlockConverter.h"

#include "OxDb/OxDbEntity.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/encoding/ValueForms.h"

#include <utility>

void BlockConverter::FinishStroke(const OxDbBlockTableRecord& record, const OxDbEntity& entity,
                                  block::BlockSymbol& symbol) const {
    auto& [path, shapes] = symbol.CurrentPath();
    if (!shapes.empty()) {
        path += L' ';
        path += shapes;
    }
    // Resolved also for an entity without geometry: the parameters are wanted then too.
    std::wstring color = GetEntityColor(record, entity, entity.color(), symbol);
    std::wstring lineWeight = GetEntityLineweight(record, entity, symbol);
    if (path.empty()) {
        return;
    }
    static const std::wstring no = encoding::BooleanString(false);
    auto graphic = symbol.MakePath();
    graphic->SetLineColor(std::move(color));
    graphic->SetLineWeight(std::move(lineWeight));
    graphic->SetLineWeightScalable(no);
    symbol.Adopt(std::move(graphic));
}
