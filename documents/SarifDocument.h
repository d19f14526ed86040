// What was found in files as a SARIF 2.1.0 log, which editors and code hosts show.
#pragma once

#include "diagnostics/Diagnostic.h"

#include <string>

namespace documents {

/// One run with the findings, and with a rule for each code among them. Columns stand with the properties, as
/// they count bytes.
std::string SarifText(const diagnostics::Diagnostics& found, const std::string& toolVersion);

/// The path of a file as a reference of a URI: "walls%201.pat", "file:///home/walls.pat".
std::string UriOf(const std::string& path);

} // namespace documents
