#include "conversions/Forms.h"

#include "conversions/reading/Shown.h"
#include "documents/SymbolsDocument.h"
#include "preview/Gallery.h"
#include "preview/SymbolSvg.h"

#include <algorithm>

namespace conversions {
namespace {

using SymbolList = std::vector<TylModel::SymbolDefinition*>;

void AtSymbol(TylModel::SymbolDefinition& symbol, Front& front) {
    front.AtItem("symbol " + ShownText(symbol.GetName()));
}

// Gives a writer each symbol in turn and then lets it finish.
template <class Writer>
bool WriteAll(const SymbolList& symbols, Writer&& writer, Front& front) {
    return std::all_of(symbols.begin(), symbols.end(),
                       [&](TylModel::SymbolDefinition* symbol) {
                           AtSymbol(*symbol, front);
                           return writer.Add(*symbol);
                       }) &&
           writer.Finish();
}

} // namespace

bool WriteSymbols(const SymbolList& symbols, Form form, const TextSink& sink, Front& front,
                  encoding::Fidelity fidelity) {
    front.BeginStage("Writing", symbols.size());
    switch (form) {
    case Form::kJson:
        return WriteAll(symbols, documents::SymbolsWriter(sink, fidelity), front);
    case Form::kHtml:
        return WriteAll(symbols, preview::GalleryWriter(symbols.size(), sink), front);
    case Form::kSvg:
        break;
    }
    if (symbols.size() == 1) {
        AtSymbol(*symbols.front(), front);
        return sink(preview::SymbolSvg(*symbols.front()));
    }
    return WriteAll(symbols, preview::SheetWriter(symbols.size(), sink), front);
}

} // namespace conversions
