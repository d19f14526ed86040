// Symbols documents, taken as symbols again.
#pragma once

#include "conversions/Conversion.h"

namespace conversions {

/// The symbols of the document, with what it says of their origins. A tolerant conversion skips those that
/// are invalid, and needs one.
Conversion ConvertSymbols(const Input& input, bool tolerant, Front& front);

/// What the document holds.
Listing ListSymbols(const Input& input, bool tolerant);

/// Errors: all that a strict conversion refuses.
diagnostics::Diagnostics CheckSymbols(const Input& input);

} // namespace conversions
