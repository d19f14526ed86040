// The layers that the entities of a block name, each looked up in the drawing once.
#pragma once

#include "OxDb/OxCmColor.h"
#include "OxDb/OxDbTypes.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

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

/// Found by name. Where entities are on many layers by turns, memory that is not in the cache is what a
/// search costs: it reads one slot before the layer itself.
class NamedLayers {
public:
    /// Not yet known the first time. Stays where it is.
    NamedLayer& Named(std::wstring_view name);

private:
    struct Slot {
        std::size_t hash = 0;
        NamedLayer* layer = nullptr; ///< null: free
    };

    Slot& SlotFor(std::wstring_view name, std::size_t hash);
    void Grow();

    std::deque<NamedLayer> layers_;
    std::vector<Slot> slots_; ///< a power of two of them, more than half of them free
    // Asked for last: an entity asks twice, and its neighbours often for the same.
    NamedLayer* last_ = nullptr;
};

} // namespace block
