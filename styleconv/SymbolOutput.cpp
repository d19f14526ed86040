#include "styleconv/SymbolOutput.h"

#include "documents/SymbolsDocument.h"
#include "styleconv/Messages.h"
#include "styleconv/OutputFile.h"
#include "styleconv/WorkLimits.h"

#include <algorithm>

namespace styleconv {

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
    documents::SymbolsWriter writer([&](std::string_view text) { return output.Write(text); });
    const bool written = std::all_of(symbols.begin(), symbols.end(),
                                     [&](TylModel::SymbolDefinition* symbol) {
                                         NowAtItem("symbol " + Shown(symbol->GetName()));
                                         return writer.Add(*symbol);
                                     }) &&
                         writer.Finish() && output.Commit();
    return written ? kDone : kInputFault;
}

} // namespace styleconv
