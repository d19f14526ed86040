// The symbol of the block under conversion, as the collectors see it.
#pragma once

#include "StyleConversion/interfaces/HostNames.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace block {

/// Lets a set of strings be searched for a string view.
struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::wstring_view text) const { return std::hash<std::wstring_view>()(text); }
};

using TextSet = std::unordered_set<std::wstring, TextHash, std::equal_to<>>;

/// What the parameters of a block stand for, in the numbers of the symbol model.
inline constexpr int kTextType = 0;
inline constexpr int kAngleType = 5;
inline constexpr int kLineColorType = 7;
inline constexpr int kLineWeightType = 8;

inline void SetDataType(TylModel::Parameter& parameter, int type) {
    parameter.SetDataType(static_cast<TylModel::Parameter::DataType>(type));
}

/// A layer that entities of the block name, looked up in the drawing once.
struct NamedLayer {
    std::wstring name;              // as entities spell it
    std::wstring record;            // as the layer spells it
    std::optional<OxCmColor> color; // none before the layer has been found
    int lineWeight = 0;
    bool isKnown = false; // with its own spelling; else it is to be looked up again
    // Whether the symbol has the parameter.
    bool hasColorParameter = false;
    bool hasLineweightParameter = false;
};

class NamedLayers {
public:
    /// The layer of that name, not yet known the first time. It stays where it is.
    NamedLayer& Named(std::wstring_view name);

private:
    std::deque<NamedLayer> layers_;
    std::unordered_map<std::wstring_view, NamedLayer*> byName_; // the names are in layers_
    // Asked for last: an entity asks twice, and its neighbours often for the same.
    NamedLayer* last_ = nullptr;
};

/// The geometry of one entity: its own, and that of the shapes and texts in its linetype.
struct EntityPath {
    std::wstring path;
    std::wstring shapes;
};

/// Lives as long as the conversion of one block and knows, beside the symbol, what would otherwise have to be
/// searched for at every entity: the identifiers of the symbol's parameters, the layers to ignore, and
/// the layers of entities. The converter hands it to the collectors in the symbol's place, and so needs no
/// state of its own between conversions. An entity's cost does not grow with the number of layers or
/// parameters.
class BlockSymbol {
public:
    /// Both must outlive this object.
    BlockSymbol(TylModel::SimpleSymbolDefinition& symbol, const std::vector<std::wstring>& layersToIgnore);

    bool IgnoresAnyLayer() const { return !layersToIgnore_.empty(); }
    bool IgnoresLayer(std::wstring_view layer) const { return layersToIgnore_.contains(layer); }

    /// Whether a search through the symbol's parameters for that identifier would find one.
    bool HasParameter(std::wstring_view identifier) const { return identifiers_.contains(identifier); }

    /// Not yet known the first time.
    NamedLayer& LayerNamed(std::wstring_view name) { return layers_.Named(name); }

    /// Both append to the symbol, which then owns the object. A parameter's identifier is not looked for.
    void Adopt(std::unique_ptr<TylModel::Parameter> parameter);
    void Adopt(std::unique_ptr<TylModel::GraphicElement> graphic);
    void AdoptPointUsage(std::unique_ptr<TylModel::PointUsage> usage);

    /// Room for the geometry of the next entity: both strings empty, with the storage of entities before.
    EntityPath& StartPath();
    /// What was written since.
    EntityPath& CurrentPath() { return path_; }
    /// A graphic of it: the path as it stands now.
    std::unique_ptr<TylModel::Path> MakePath() const;
    /// The end of every entity that is stroked: puts the path of the shapes behind the entity's own and
    /// appends a graphic in that colour and weight, where there is any geometry.
    void AdoptStroke(const std::wstring& color, const std::wstring& lineWeight);

private:
    TylModel::SimpleSymbolDefinition& symbol_;
    TextSet identifiers_;
    std::unordered_set<std::wstring_view> layersToIgnore_;
    NamedLayers layers_;
    EntityPath path_;
};

} // namespace block
