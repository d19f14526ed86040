// What a job comes to.
#pragma once

#include "StyleConversion/encoding/Fidelity.h"
#include "TylModel/TylModel.h"
#include "conversions/Captions.h"
#include "conversions/reading/Front.h"
#include "conversions/reading/Input.h"
#include "diagnostics/Diagnostic.h"
#include "documents/ListDocument.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace conversions {

using Symbols = std::vector<std::unique_ptr<TylModel::SymbolDefinition>>;

/// Symbols of a file. Where it is not converted, errors say why and there are none.
struct Conversion {
    bool isConverted = false;
    encoding::Fidelity fidelity = encoding::Fidelity::kStrict; // of the symbols
    Symbols owned;
    std::vector<TylModel::SymbolDefinition*> symbols; // as asked for; one may be there more than once
    Captions captions;
    std::vector<diagnostics::Place> places; // where each of `owned` stands
    diagnostics::Diagnostics diagnostics;

    /// Of a symbols document, in which symbols come from files of their own and may share names: what each of
    /// `owned` was, and whether the document says so.
    bool isDocument = false;
    std::vector<std::string_view> kinds;
    std::vector<bool> hasOrigin;

    /// Every symbol once, in their order.
    void UseAll() {
        for (const auto& symbol : owned) {
            symbols.push_back(symbol.get());
        }
    }
};

/// What a file holds.
struct Listing {
    bool isListed = false;
    std::vector<documents::ListedSymbol> symbols;
    diagnostics::Diagnostics diagnostics;
};

} // namespace conversions
