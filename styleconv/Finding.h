// Findings in the form that editors know from compilers.
#pragma once

#include "documents/FindingsDocument.h"

#include <string>
#include <vector>

namespace styleconv {

using documents::Finding;
using documents::Severity;

/// "gas.lin:14: error: U= is not a known placement key (linetype GAS)"
std::string FindingText(const Finding& finding);

/// By line; those of one line stay in their order.
void SortByLine(std::vector<Finding>& findings);

/// Says each on standard error.
void SayFindings(const std::vector<Finding>& findings);

} // namespace styleconv
