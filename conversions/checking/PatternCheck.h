// What is said of the symbol of a pattern: what it does not draw, or draws elsewhere.
#pragma once

#include "StyleConversion/pattern/PatternLine.h"
#include "TylModel/TylModel.h"
#include "conversions/reading/Input.h"
#include "conversions/reading/Patterns.h"
#include "diagnostics/Diagnostic.h"

#include <optional>
#include <string>
#include <vector>

namespace conversions {

/// What the strict symbol of a pattern loses: an error where families are lost. `families` are those that it
/// was built from, in the order of the file. Nothing where all is in its place.
std::optional<diagnostics::Diagnostic> StrictLosses(const Input& input, const LoadedPatterns& loaded,
                                                    const std::string& name,
                                                    const std::vector<pattern::PatternLine>& families,
                                                    TylModel::SymbolDefinition& symbol);

/// That several patterns of the file have that name: a warning at each header but the first.
diagnostics::Diagnostics DuplicatePatterns(const Input& input, const LoadedPatterns& loaded,
                                           const std::string& name);

} // namespace conversions
