// The layers that the entities of a block name, each looked up in the drawing once.
#pragma once

#include "OxDb/OxCmColor.h"
#include "OxDb/OxDbTypes.h"

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace block {

struct NamedLayer {
    std::wstring name;   // as entities spell it
    std::wstring record; // as the layer spells it
    OxCmColor color;
    OxDb::LineWeight lineWeight = OxDb::kLnWt000;
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

} // namespace block
