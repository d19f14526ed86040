// Diagnostics of files as a JSON document.
#pragma once

#include "diagnostics/Diagnostic.h"

#include <string>

namespace documents {

/// The findings document, with the diagnostics in their order.
std::string DiagnosticsText(const diagnostics::Diagnostics& found);

} // namespace documents
