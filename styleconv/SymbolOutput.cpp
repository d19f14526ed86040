#include "styleconv/SymbolOutput.h"

#include "documents/SymbolsDocument.h"
#include "preview/Gallery.h"
#include "preview/SymbolSvg.h"
#include "styleconv/Messages.h"
#include "styleconv/OutputFile.h"
#include "styleconv/Progress.h"
#include "styleconv/WorkLimits.h"

#include <algorithm>

namespace styleconv {
namespace {

using SymbolList = std::vector<TylModel::SymbolDefinition*>;

// Gives a writer each symbol in turn and then lets it finish.
template <class Writer>
bool WriteAll(const SymbolList& symbols, Writer&& writer) {
    return std::all_of(symbols.begin(), symbols.end(),
                       [&](TylModel::SymbolDefinition* symbol) {
                           NowAtItem("symbol " + Shown(symbol->GetName()));
                           return writer.Add(*symbol);
                       }) &&
           writer.Finish();
}

// One symbol is a picture of its own; several make a sheet.
bool WriteSvg(const SymbolList& symbols, const preview::TextSink& sink) {
    if (symbols.size() == 1) {
        NowAtItem("symbol " + Shown(symbols.front()->GetName()));
        return sink(preview::SymbolSvg(*symbols.front()));
    }
    return WriteAll(symbols, preview::SheetWriter(symbols.size(), sink));
}

bool WriteForm(const SymbolList& symbols, const std::string& format, const preview::TextSink& sink) {
    if (format == "svg") {
        return WriteSvg(symbols, sink);
    }
    if (format == "html") {
        return WriteAll(symbols, preview::GalleryWriter(symbols.size(), sink));
    }
    return WriteAll(symbols, documents::SymbolsWriter(sink));
}

} // namespace

ExitStatus WriteSymbols(const Symbols& symbols, const CommonOptions& options) {
    std::vector<TylModel::SymbolDefinition*> borrowed;
    borrowed.reserve(symbols.size());
    for (const auto& symbol : symbols) {
        borrowed.push_back(symbol.get());
    }
    return WriteSymbols(borrowed, options);
}

ExitStatus WriteSymbols(const std::vector<TylModel::SymbolDefinition*>& symbols,
                        const CommonOptions& options) {
    OutputFile output(options.output);
    BeginWriting(options.output.empty(), symbols.size());
    const auto sink = [&](std::string_view text) { return output.Write(text); };
    return WriteForm(symbols, options.format, sink) && output.Commit() ? kDone : kInputFault;
}

} // namespace styleconv
