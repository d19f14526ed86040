// Symbols documents, read back into symbol definitions.
#pragma once

#include "StyleConversion/encoding/Fidelity.h"
#include "TylModel/TylModel.h"
#include "diagnostics/Diagnostic.h"
#include "documents/SymbolsDocument.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace documents {

struct ReadSymbol {
    std::unique_ptr<TylModel::SymbolDefinition> definition;
    std::optional<SymbolOrigin> origin; // where the document says it
    std::size_t index = 0;              // in the document's list
};

struct SymbolsOfDocument {
    encoding::Fidelity fidelity = encoding::Fidelity::kStrict;
    std::vector<ReadSymbol> symbols;
};

/// Reads a document (UTF-8 JSON). What is refused is added to `problems`, as errors with the path of the
/// value and no file; false where that is the whole document. A tolerant reading skips the symbol that has
/// the value, with a warning; to a strict one that is the whole document.
bool ReadSymbols(std::string_view text, bool tolerant, SymbolsOfDocument& document,
                 diagnostics::Diagnostics& problems);

} // namespace documents
