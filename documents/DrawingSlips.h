// What a reading that forgives has left out of a drawing document.
#pragma once

#include "documents/DrawingFault.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace documents {

struct DrawingSlip {
    DrawingFault fault;      // the first of its kind
    std::string consequence; // "the entity is left out"
    std::string item;        // "block TREE", "linetype GAS"; empty where it has no name
    std::size_t count = 1;   // how many there are that differ in nothing but their places in lists
};

/// Reading with one of these leaves out the smallest part that can be missed, and goes on behind it: a key
/// that nothing knows, an entity, or a layer, linetype, text style or block. Where the text is no JSON any
/// more, the blocks before that place are kept.
class DrawingSlips {
public:
    /// `item` is what the part belongs to, where that is known already.
    void Add(const DrawingFault& fault, std::string_view consequence, std::string_view item);

    /// What is added from here on belongs to a block,
    void BeginBlock();
    /// which is called so ("block TREE"; may be empty).
    void EndBlock(const std::string& item);

    /// In the order of the document.
    const std::vector<DrawingSlip>& All() const { return slips_; }

private:
    std::vector<DrawingSlip> slips_;
    std::unordered_map<std::string, std::size_t> kinds_; // to slips; of the block that is open
    std::size_t blockStart_ = 0;
};

} // namespace documents
