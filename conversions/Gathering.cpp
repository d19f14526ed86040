#include "conversions/Gathering.h"

#include "StyleConversion/platform/Utf8.h"
#include "conversions/reading/Shown.h"

#include <algorithm>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Outcome;
using diagnostics::Severity;

std::string_view SymbolKind(FileKind kind) {
    switch (kind) {
    case FileKind::kLinetypes:
        return "linetype";
    case FileKind::kPatterns:
        return "pattern";
    case FileKind::kShapes:
        return "glyph";
    case FileKind::kDrawing:
    case FileKind::kSymbols:
    case FileKind::kUnknown:
        break;
    }
    return "block";
}

std::wstring InBrackets(const std::wstring& name, const std::string& text) {
    return name + L" (" + platform::Utf8ToWide(text) + L")";
}

} // namespace

void Gathering::Add(const std::string& file, FileKind kind, Conversion conversion) {
    ++files_;
    Append(told_, std::move(conversion.diagnostics));
    if (!conversion.isConverted) {
        refused_.push_back(file);
        return;
    }
    // Glyphs are the same in both.
    if (kind != FileKind::kShapes) {
        if (IsOfOtherFidelity(file, conversion)) {
            refused_.push_back(file);
            return;
        }
        fidelity_ = conversion.fidelity;
    }
    // A page of several files is called as none of them.
    captions_.title = symbols_.empty() ? conversion.captions.title : "";
    captions_.descriptions.merge(conversion.captions.descriptions);
    captions_.losses.merge(conversion.captions.losses);
    captions_.glyphs.merge(conversion.captions.glyphs);
    AddNames(file, conversion);
    AddSymbols(file, kind, std::move(conversion));
}

// One document has one fidelity.
bool Gathering::IsOfOtherFidelity(const std::string& file, const Conversion& conversion) {
    if (!fidelity_ || conversion.fidelity == *fidelity_) {
        return false;
    }
    const bool isFaithful = conversion.fidelity == encoding::Fidelity::kFaithful;
    told_.push_back({Severity::kError,
                     Code::kOtherFidelity,
                     {file},
                     {isFaithful ? "faithful" : "strict", isFaithful ? "strict" : "faithful",
                      isFaithful ? "with" : "without"}});
    return true;
}

void Gathering::AddSymbols(const std::string& file, FileKind kind, Conversion conversion) {
    for (std::size_t i = 0; i < conversion.owned.size(); ++i) {
        const bool isTold = conversion.isDocument && conversion.hasOrigin[i];
        captions_.sources[conversion.owned[i].get()] = isTold ? conversion.places[i].file : file;
        origins_.push_back({conversion.isDocument ? conversion.kinds[i] : SymbolKind(kind),
                            std::move(conversion.places[i])});
        toldOrigins_.push_back(isTold);
        symbols_.push_back(conversion.owned[i].get());
        owned_.push_back(std::move(conversion.owned[i]));
    }
}

// What has one name within a document has it there for a reason, and keeps it.
void Gathering::AddNames(const std::string& file, Conversion& conversion) {
    if (!conversion.isDocument) {
        for (std::size_t i = 0; i < conversion.owned.size(); ++i) {
            KeepApart(*conversion.owned[i], conversion.places[i]);
        }
        return;
    }
    for (const auto& symbol : conversion.owned) {
        if (names_.count(symbol->GetName()) > 0) {
            KeepApart(*symbol, {file});
        }
    }
    for (const auto& symbol : conversion.owned) {
        names_.insert(symbol->GetName());
    }
}

// Adds the file to a name that is used already, and then the line or a number.
void Gathering::KeepApart(TylModel::SymbolDefinition& symbol, const diagnostics::Place& place) {
    const std::wstring name = symbol.GetName();
    if (names_.insert(name).second) {
        return;
    }
    std::wstring kept = InBrackets(name, place.file);
    if (names_.contains(kept) && place.line > 0) {
        kept = InBrackets(name, place.file + ":" + std::to_string(place.line));
    }
    for (int number = 2; !names_.insert(kept).second; ++number) {
        kept = InBrackets(name, place.file + ", " + std::to_string(number));
    }
    symbol.SetName(kept);
    diagnostics::Place told = place;
    told.item = "symbol " + ShownText(kept);
    told_.push_back({Severity::kWarning, Code::kNameOfAnotherFile, std::move(told), {}, Outcome::kRepaired});
}

diagnostics::Diagnostics Gathering::Told() const {
    diagnostics::Diagnostics told = told_;
    MergeAcrossFiles(told);
    return told;
}

bool Gathering::Write(Form form, bool tellsOrigins, const TextSink& sink, Front& front,
                      StyleJob* styles) const {
    const encoding::Fidelity fidelity = fidelity_.value_or(encoding::Fidelity::kStrict);
    const bool saysAny =
        tellsOrigins || std::find(toldOrigins_.begin(), toldOrigins_.end(), true) != toldOrigins_.end();
    if (form != Form::kJson || !saysAny) {
        return WriteSymbols(symbols_, form, sink, front, fidelity, captions_, styles);
    }
    front.BeginStage("Writing", symbols_.size());
    documents::SymbolsWriter writer(sink, fidelity);
    for (std::size_t i = 0; i < symbols_.size(); ++i) {
        front.AtItem("symbol " + ShownText(symbols_[i]->GetName()));
        if (!writer.Add(*symbols_[i], tellsOrigins || toldOrigins_[i] ? &origins_[i] : nullptr)) {
            return false;
        }
    }
    return writer.Finish();
}

} // namespace conversions
