// Symbols written in the form that the command line asks for.
#pragma once

#include "TylModel/TylModel.h"
#include "styleconv/Command.h"

#include <memory>
#include <vector>

namespace styleconv {

using Symbols = std::vector<std::unique_ptr<TylModel::SymbolDefinition>>;

/// Writes the symbols and gives the exit status. What goes wrong is said on standard error.
ExitStatus WriteSymbols(const Symbols& symbols, const CommonOptions& options);
/// The same for symbols that belong to someone else, and may be in the list more than once.
ExitStatus WriteSymbols(const std::vector<TylModel::SymbolDefinition*>& symbols,
                        const CommonOptions& options);

} // namespace styleconv
