#include "StyleConversion/block/BlockSymbol.h"

#include <cstddef>
#include <cstdint>
#include <utility>

namespace block {
namespace {

// Characters up to which a path is copied: the copy is no longer than need be, and the storage serves the
// next entity. Beyond, copying is what counts.
constexpr std::size_t kLongPath = 65536;

} // namespace

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

std::unique_ptr<TylModel::Path> BlockSymbol::MakePath() {
    auto graphic = std::make_unique<TylModel::Path>();
    if (path_.path.size() > kLongPath) {
        graphic->SetGeometry(std::move(path_.path));
    } else {
        graphic->SetGeometry(path_.path);
    }
    return graphic;
}

} // namespace block
