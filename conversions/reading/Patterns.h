// A pattern file to families of lines, and what is said of it.
#pragma once

#include "StyleConversion/pattern/FaithfulTiles.h"
#include "StyleConversion/pattern/PatternFile.h"
#include "conversions/reading/Input.h"
#include "diagnostics/Diagnostic.h"

#include <string>
#include <vector>

namespace conversions {

struct LoadedPatterns {
    pattern::PatternFile file;
    pattern::PatternReading reading;
};

/// False where the file has no patterns or its reading ended early, which is said.
bool ReadPatterns(const Input& input, const pattern::PatternPolicy& policy, LoadedPatterns& loaded,
                  diagnostics::Diagnostics& diagnostics);

/// What a strict reading makes of a file that was read by a tolerant policy.
diagnostics::Diagnostics CheckedPatterns(const Input& input, const LoadedPatterns& loaded);

/// What a tolerant reading made of it: warnings.
diagnostics::Diagnostics ToleratedPatterns(const Input& input, const LoadedPatterns& loaded);

/// Warns where lengths are to be scaled to a unit and the file does not say its own.
void TellMissingUnit(const Input& input, const LoadedPatterns& loaded, pattern::Unit wanted,
                     diagnostics::Diagnostics& diagnostics);

/// Which families of a pattern a faithful symbol lacks, and how far its worst tile misses: warnings.
diagnostics::Diagnostics FaithfulLosses(const Input& input, const LoadedPatterns& loaded,
                                        const std::string& name, const pattern::FaithfulTiles& tiles);

/// Why a pattern of these families becomes nothing.
diagnostics::Code WhyNoSymbol(const std::vector<pattern::PatternLine>& lines);

/// "pattern BRICK"
std::string PatternItem(const std::string& name);

/// That the file has nothing of its kind: at the first line where a byte-order mark hides the first header.
diagnostics::Diagnostic EmptyFile(const Input& input, diagnostics::Code code);

} // namespace conversions
