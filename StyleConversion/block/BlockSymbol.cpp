#include "StyleConversion/block/BlockSymbol.h"

#include <cstdint>
#include <utility>

namespace block {

BlockSymbol::BlockSymbol(TylModel::SimpleSymbolDefinition& symbol,
                         const std::vector<std::wstring>& layersToIgnore)
    : symbol_(symbol), layersToIgnore_(layersToIgnore.begin(), layersToIgnore.end()) {
    const auto& parameters = symbol.GetParameterDefinition();
    for (std::int32_t i = 0; i < parameters.GetCount(); ++i) {
        identifiers_.insert(parameters.GetAt(i)->GetIdentifier());
    }
}

void BlockSymbol::Adopt(std::unique_ptr<TylModel::Parameter> parameter) {
    identifiers_.insert(parameter->GetIdentifier());
    symbol_.GetParameterDefinition().Adopt(parameter.release());
}

void BlockSymbol::Adopt(std::unique_ptr<TylModel::GraphicElement> graphic) {
    symbol_.GetGraphics().Adopt(graphic.release());
}

void BlockSymbol::AdoptPointUsage(std::unique_ptr<TylModel::PointUsage> usage) {
    symbol_.AdoptPointUsage(usage.release());
}

EntityPath& BlockSymbol::StartPath() {
    path_.path.clear();
    path_.shapes.clear();
    return path_;
}

} // namespace block
