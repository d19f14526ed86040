// Pattern files to area symbols.
#pragma once

#include "StyleConversion/pattern/PatternPolicy.h"
#include "conversions/Conversion.h"

#include <string>
#include <vector>

namespace conversions {

struct PatternsOptions {
    std::vector<std::wstring> names; // only these, in their order; all where it is empty
    bool tolerant = false;
    /// The unit to which a file that says another one is scaled; none where nothing is scaled.
    pattern::Unit unit = pattern::Unit::kNone;
    encoding::Fidelity fidelity = encoding::Fidelity::kStrict;
};

/// All patterns that have a repeat tile, in the order of their names, or those asked for, and then all of
/// them. A tolerant conversion reads what is wrong as it is meant, and needs one.
Conversion ConvertPatterns(const Input& input, const PatternsOptions& options, Front& front);

/// All patterns in the order in which they are converted.
Listing ListPatterns(const Input& input, bool tolerant = false);

} // namespace conversions
