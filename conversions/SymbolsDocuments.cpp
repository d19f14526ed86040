#include "conversions/SymbolsDocuments.h"

#include "StyleConversion/platform/Utf8.h"
#include "conversions/reading/FileKind.h"
#include "documents/SymbolsReader.h"

#include <string>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Diagnostics;
using diagnostics::Severity;
using documents::ReadSymbol;
using documents::SymbolsOfDocument;

// What a symbol is used for tells of what it was made.
class KindByUsage final : public TylModel::ISymbolDefinitionVisitor {
public:
    void VisitSimpleSymbolDefinition(TylModel::SimpleSymbolDefinition& definition) override {
        kind_ = definition.GetLineUsage() != nullptr   ? "linetype"
                : definition.GetAreaUsage() != nullptr ? "pattern"
                                                       : "block";
    }
    void VisitCompoundSymbolDefinition(TylModel::CompoundSymbolDefinition& definition) override {
        if (definition.GetSymbols().GetCount() > 0) {
            VisitSimpleSymbolDefinition(*definition.GetSymbols().GetAt(0)->GetSymbolDefinition());
        }
    }
    std::string_view Kind() const { return kind_; }

private:
    std::string_view kind_ = "block";
};

std::string_view KindOf(const ReadSymbol& symbol) {
    if (symbol.origin) {
        return symbol.origin->kind;
    }
    KindByUsage kind;
    symbol.definition->AcceptVisitor(kind);
    return kind.Kind();
}

// Where the document says that it comes from, or else where it stands in the document.
diagnostics::Place PlaceOf(const Input& input, const ReadSymbol& symbol) {
    if (symbol.origin) {
        return symbol.origin->place;
    }
    diagnostics::Place place(input.name);
    place.path = "symbols[" + std::to_string(symbol.index) + "]";
    return place;
}

// False, which is said, where the document is refused or gives nothing.
bool Read(const Input& input, bool tolerant, SymbolsOfDocument& document, Diagnostics& problems) {
    bool isRead = ReadSymbols(input.bytes, tolerant, document, problems);
    if (isRead && document.symbols.empty()) {
        Diagnostic nothing;
        nothing.code = problems.empty() ? Code::kNoSymbols : Code::kNothingConverted;
        nothing.subjects = {"symbols"};
        problems.push_back(std::move(nothing));
        isRead = false;
    }
    for (Diagnostic& problem : problems) {
        problem.place.file = input.name;
    }
    return isRead;
}

} // namespace

Conversion ConvertSymbols(const Input& input, bool tolerant, Front& front) {
    Conversion result;
    SymbolsOfDocument document;
    result.isConverted = Read(input, tolerant, document, result.diagnostics);
    if (!result.isConverted) {
        TellWrongKind(input, FileKind::kSymbols, KindAdvice::kOtherCommand, result.diagnostics);
        return result;
    }
    result.fidelity = document.fidelity;
    result.isDocument = true;
    front.BeginStage("Converting", document.symbols.size());
    for (ReadSymbol& symbol : document.symbols) {
        front.AtItem("symbol " + platform::WideToValidUtf8(symbol.definition->GetName()));
        result.kinds.push_back(KindOf(symbol));
        result.hasOrigin.push_back(symbol.origin.has_value());
        result.places.push_back(PlaceOf(input, symbol));
        result.owned.push_back(std::move(symbol.definition));
    }
    result.UseAll();
    return result;
}

Listing ListSymbols(const Input& input, bool tolerant) {
    Listing listing;
    SymbolsOfDocument document;
    listing.isListed = Read(input, tolerant, document, listing.diagnostics);
    for (const ReadSymbol& symbol : document.symbols) {
        if (listing.isListed) {
            listing.symbols.push_back(
                {KindOf(symbol), platform::WideToValidUtf8(symbol.definition->GetName()),
                 platform::WideToValidUtf8(symbol.definition->GetDescription()), PlaceOf(input, symbol)});
        }
    }
    return listing;
}

Diagnostics CheckSymbols(const Input& input) {
    Diagnostics problems;
    SymbolsOfDocument document;
    Read(input, true, document, problems);
    for (Diagnostic& problem : problems) {
        problem.severity = Severity::kError;
        problem.outcome = diagnostics::Outcome::kNone;
    }
    return problems;
}

} // namespace conversions
