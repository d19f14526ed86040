// What a reading of a linetype file came upon, as diagnostics.
#pragma once

#include "StyleConversion/linetype/LinErrors.h"
#include "conversions/reading/LinetypeSources.h"
#include "diagnostics/Diagnostic.h"

#include <string>
#include <vector>

namespace conversions {

enum class Manner {
    kStrict,   // errors at which the reading failed
    kChecked,  // a tolerant reading's: what a strict one fails at or loses something by
    kTolerant, // the same, with what became of it: warnings
};

/// `file` is what messages call the linetype file.
diagnostics::Diagnostics DiagnosticsOf(const std::string& file,
                                       const std::vector<LineConverter::LinError>& errors, Manner manner,
                                       const LinetypeSources& sources);

/// "linetype GAS"
std::string LinetypeItem(const std::string& name);

} // namespace conversions
