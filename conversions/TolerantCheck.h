// What a tolerant conversion would say of what a check found.
#pragma once

#include "conversions/Conversion.h"
#include "conversions/checking/Check.h"

namespace conversions {

/// A tolerant conversion of a file of that kind, which is known, with the options of a check.
Conversion ConvertTolerantly(FileKind kind, const Input& input, const CheckOptions& options, Front& front);

/// Makes warnings of the errors of a check that the tolerant conversion of the same file reads or skips, and
/// says which. What it refuses the file for stays an error, or is added.
diagnostics::Diagnostics JudgedTolerantly(diagnostics::Diagnostics found, const Conversion& tolerant);

} // namespace conversions
