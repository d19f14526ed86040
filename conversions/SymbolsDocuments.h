// Symbols documents, taken as symbols again.
#pragma once

#include "conversions/Conversion.h"
#include "conversions/reading/FileKind.h"

#include <string>
#include <vector>

namespace conversions {

/// The symbols of the document, with what it says of their origins. A tolerant conversion skips those that
/// are invalid, and needs one.
Conversion ConvertSymbols(const Input& input, bool tolerant, Front& front);

/// The same of those alone that files of `kind` become, and of these of the ones with these names, in the
/// order of the names; all where there are none. What is left out is said. Point symbols of which the
/// document does not say what they were are blocks and glyphs.
Conversion ConvertSymbolsOfKind(const Input& input, FileKind kind, const std::vector<std::wstring>& names,
                                bool tolerant, Front& front);

/// What the document holds.
Listing ListSymbols(const Input& input, bool tolerant);

/// Errors: all that a strict conversion refuses.
diagnostics::Diagnostics CheckSymbols(const Input& input);

} // namespace conversions
