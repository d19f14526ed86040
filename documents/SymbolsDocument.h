// Symbol definitions as a JSON document, written symbol by symbol.
#pragma once

#include "StyleConversion/encoding/Fidelity.h"
#include "TylModel/TylModel.h"
#include "diagnostics/Diagnostic.h"

#include <functional>
#include <string>
#include <string_view>

namespace documents {

/// Takes the next piece of a document's UTF-8 text. False stops the writing: the piece could not be stored.
using TextSink = std::function<bool(std::string_view)>;

/// Where a symbol comes from.
struct SymbolOrigin {
    std::string_view kind; // "linetype", "pattern", "block" or "glyph"
    diagnostics::Place place;
};

/// Writes one symbols document: call Add for each symbol in turn, then Finish. The text of one symbol at a
/// time is held in memory. Keys of empty properties and of usages that were never adopted are left out.
class SymbolsWriter {
public:
    explicit SymbolsWriter(TextSink sink, encoding::Fidelity fidelity = encoding::Fidelity::kStrict)
        : sink_(std::move(sink)), fidelity_(fidelity) {}

    /// With its origin where one is given. False when the sink refused a piece; nothing more is to be written
    /// then.
    bool Add(TylModel::SymbolDefinition& symbol, const SymbolOrigin* origin = nullptr);
    bool Finish();

private:
    TextSink sink_;
    encoding::Fidelity fidelity_; // which the document says where it is not strict
    std::string text_;            // of the last symbol, kept for its room
    bool started_ = false;
};

/// The JSON value of one symbol, as it stands in such a document.
std::string SymbolText(TylModel::SymbolDefinition& symbol);

} // namespace documents
