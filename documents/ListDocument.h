// What files hold, without its symbols, as JSON.
#pragma once

#include "diagnostics/Diagnostic.h"

#include <string>
#include <string_view>
#include <vector>

namespace documents {

/// What is converted to one symbol. Texts are UTF-8.
struct ListedSymbol {
    std::string_view kind; // "linetype", "pattern", "block" or "glyph"
    std::string name;
    std::string description; // may be empty
    diagnostics::Place place;
};

/// A list of objects, one for each. Descriptions, lines and numbers of shapes that are not there are left
/// out.
std::string ListText(const std::vector<ListedSymbol>& symbols);

} // namespace documents
