#include "conversions/SymbolsDocuments.h"

#include "StyleConversion/platform/Utf8.h"
#include "conversions/reading/Shown.h"
#include "documents/SymbolsReader.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Diagnostics;
using diagnostics::Outcome;
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

// What symbols of the kind are called, as a document says it.
std::string_view SymbolKindOf(FileKind kind) {
    switch (kind) {
    case FileKind::kLinetypes:
        return "linetype";
    case FileKind::kPatterns:
        return "pattern";
    case FileKind::kShapes:
        return "glyph";
    default:
        return "block";
    }
}

bool IsOfKind(const Conversion& conversion, std::size_t i, std::string_view kind) {
    const bool isAnyPoint = !conversion.hasOrigin[i] && conversion.kinds[i] == "block";
    return conversion.kinds[i] == kind || (isAnyPoint && kind == "glyph");
}

// Leaves those at these positions, in their order.
void Keep(const std::vector<std::size_t>& positions, Conversion& conversion) {
    Conversion kept;
    for (const std::size_t i : positions) {
        kept.owned.push_back(std::move(conversion.owned[i]));
        kept.places.push_back(std::move(conversion.places[i]));
        kept.kinds.push_back(conversion.kinds[i]);
        kept.hasOrigin.push_back(conversion.hasOrigin[i]);
    }
    conversion.owned = std::move(kept.owned);
    conversion.places = std::move(kept.places);
    conversion.kinds = std::move(kept.kinds);
    conversion.hasOrigin = std::move(kept.hasOrigin);
    conversion.symbols.clear();
    conversion.UseAll();
}

// Nothing is left where the conversion fails.
void Refuse(Conversion& conversion) {
    Keep({}, conversion);
    conversion.isConverted = false;
}

void KeepKind(const Input& input, std::string_view kind, Conversion& conversion) {
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < conversion.owned.size(); ++i) {
        if (IsOfKind(conversion, i, kind)) {
            positions.push_back(i);
        }
    }
    const std::size_t all = conversion.owned.size();
    const std::size_t others = all - positions.size();
    if (others > 0) {
        Diagnostic told;
        told.severity = positions.empty() ? Severity::kError : Severity::kWarning;
        told.code = Code::kSymbolsOfOtherKinds;
        told.place.file = input.name;
        told.subjects = {std::to_string(others), std::to_string(all), std::string(kind)};
        told.outcome = positions.empty() ? Outcome::kNone : Outcome::kSkipped;
        conversion.diagnostics.push_back(std::move(told));
    }
    if (positions.empty()) {
        Refuse(conversion);
    } else if (others > 0) {
        Keep(positions, conversion);
    }
}

// A document may have several of one name. Each is taken once, however often its name is asked for.
void KeepNamed(const Input& input, std::string_view kind, const std::vector<std::wstring>& names,
               bool tolerant, Conversion& conversion) {
    std::map<std::wstring, std::vector<std::size_t>> byName;
    for (std::size_t i = 0; i < conversion.owned.size(); ++i) {
        byName[conversion.owned[i]->GetName()].push_back(i);
    }
    std::vector<std::size_t> positions;
    bool isComplete = true;
    for (const std::wstring& name : names) {
        const auto found = byName.find(name);
        if (found == byName.end()) {
            isComplete = false;
            conversion.diagnostics.push_back({tolerant ? Severity::kWarning : Severity::kError,
                                              Code::kMissingName,
                                              {input.name},
                                              {std::string(kind), ShownText(name)}});
        } else {
            positions.insert(positions.end(), found->second.begin(), found->second.end());
            found->second.clear();
        }
    }
    if (positions.empty() || (!isComplete && !tolerant)) {
        Refuse(conversion);
    } else {
        Keep(positions, conversion);
    }
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

Conversion ConvertSymbolsOfKind(const Input& input, FileKind kind, const std::vector<std::wstring>& names,
                                bool tolerant, Front& front) {
    Conversion result = ConvertSymbols(input, tolerant, front);
    const std::string_view word = SymbolKindOf(kind);
    if (result.isConverted) {
        KeepKind(input, word, result);
    }
    if (result.isConverted && !names.empty()) {
        KeepNamed(input, word, names, tolerant, result);
    }
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
        problem.outcome = Outcome::kNone;
    }
    return problems;
}

} // namespace conversions
