// Which characters of the texts of linetypes their fonts lack.
#pragma once

#include "StyleConversion/linetype/LinetypeFile.h"
#include "conversions/reading/LinetypeSources.h"
#include "diagnostics/Diagnostic.h"

#include <string>

namespace conversions {

/// One for each text whose SHX font lacks characters of it, which a conversion passes over in silence.
/// What the file names has been resolved.
diagnostics::Diagnostics MissingCharacters(const std::string& file,
                                           const LineConverter::LinetypeFile& linetypes,
                                           const LinetypeSources& sources, diagnostics::Severity severity,
                                           diagnostics::Outcome outcome);

} // namespace conversions
