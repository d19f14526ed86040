// Linetype files to line symbols.
#pragma once

#include "conversions/Conversion.h"
#include "conversions/reading/LinetypeSources.h"

#include <string>
#include <vector>

namespace conversions {

struct LinetypesOptions : LinetypeSourceOptions {
    std::vector<std::wstring> names; // only linetypes of these names, in their order; all where it is empty
    double scale = 1.0;              // multiplies all lengths
    encoding::Fidelity fidelity = encoding::Fidelity::kStrict;
};

/// All that are asked for, or none: a tolerant conversion skips what is wrong, and needs one.
Conversion ConvertLinetypes(const Input& input, const LinetypesOptions& options, Front& front);

/// All linetypes in the order of the file. Styles and shape files need not be there. A tolerant listing says
/// what it left out, and needs one.
Listing ListLinetypes(const Input& input, bool tolerant = false);

} // namespace conversions
