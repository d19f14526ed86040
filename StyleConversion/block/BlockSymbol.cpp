#include "StyleConversion/block/BlockSymbol.h"

#include "StyleConversion/encoding/ValueForms.h"

namespace block {

NamedLayer& NamedLayers::Named(std::wstring_view name) {
    if (last_ != nullptr && last_->name == name) {
        return *last_;
    }
    const auto found = byName_.find(name);
    if (found != byName_.end()) {
        last_ = found->second;
    } else {
        NamedLayer& added = layers_.emplace_back();
        added.name = name;
        byName_.emplace(added.name, &added);
        last_ = &added;
    }
    return *last_;
}

BlockSymbol::BlockSymbol(TylModel::SimpleSymbolDefinition& symbol,
                         const std::vector<std::wstring>& layersToIgnore)
    : symbol_(symbol), layersToIgnore_(layersToIgnore.begin(), layersToIgnore.end()) {
    auto& parameters = host::Referred(symbol.GetParameterDefinition());
    for (int i = 0; i < host::CountOf(parameters); ++i) {
        identifiers_.insert(host::ItemAt(parameters, i).GetIdentifier());
    }
}

void BlockSymbol::Adopt(std::unique_ptr<TylModel::Parameter> parameter) {
    identifiers_.insert(parameter->GetIdentifier());
    host::Adopt(symbol_.GetParameterDefinition(), std::move(parameter));
}

void BlockSymbol::Adopt(std::unique_ptr<TylModel::GraphicElement> graphic) {
    host::Adopt(symbol_.GetGraphics(), std::move(graphic));
}

void BlockSymbol::AdoptPointUsage(std::unique_ptr<TylModel::PointUsage> usage) {
    symbol_.AdoptPointUsage(usage.release());
}

EntityPath& BlockSymbol::StartPath() {
    path_.path.clear();
    path_.shapes.clear();
    return path_;
}

void BlockSymbol::AdoptStroke(const std::wstring& color, const std::wstring& lineWeight) {
    auto& [path, shapes] = path_;
    if (!shapes.empty()) {
        path += L' ';
        path += shapes;
    }
    // Required: R7
    if (path.empty()) {
        return;
    }
    auto graphic = MakePath();
    graphic->SetLineColor(color);
    graphic->SetLineWeight(lineWeight);
    graphic->SetLineWeightScalable(encoding::BooleanString(false));
    Adopt(std::move(graphic));
}

std::unique_ptr<TylModel::Path> BlockSymbol::MakePath() const {
    auto graphic = std::make_unique<TylModel::Path>();
    graphic->SetGeometry(path_.path);
    return graphic;
}

} // namespace block
