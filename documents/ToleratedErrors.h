// What a tolerant reading has left out of a drawing document.
#pragma once

#include "diagnostics/Diagnostic.h"
#include "documents/DrawingError.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace documents {

/// Reading with one of these leaves out the smallest part that can be missed, and goes on behind it: a key
/// that nothing knows, an entity, or a layer, linetype, text style or block. Where the text is no JSON any
/// more, the blocks before that place are kept.
class ToleratedErrors {
public:
    /// `part` is what is left out ("the entity"), `item` what it belongs to, where that is known already.
    void Add(const DrawingError& error, std::string_view part, std::string_view item);

    /// What is added from here on belongs to a block,
    void BeginBlock();
    /// which is called so ("block TREE"; may be empty).
    void EndBlock(const std::string& item);

    /// Warnings in the order of the document, without a file. Of those that differ in nothing but their
    /// places in lists, the first one, with the count; the last subject is the part that is left out.
    const diagnostics::Diagnostics& All() const { return all_; }

private:
    diagnostics::Diagnostics all_;
    std::unordered_map<std::string, std::size_t> kinds_; // to errors; of the block that is open
    std::size_t blockStart_ = 0;
};

} // namespace documents
