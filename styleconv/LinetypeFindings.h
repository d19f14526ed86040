// What a reading of a linetype file that forgives has come upon, as findings.
#pragma once

#include "StyleConversion/linetype/LinFaults.h"
#include "styleconv/Finding.h"
#include "styleconv/LinetypeMessages.h"

#include <string>
#include <vector>

namespace styleconv {

/// What a strict reading makes of the file: an error for each fault that it fails at or loses something by.
std::vector<Finding> CheckedLinetypeFaults(const std::string& file,
                                           const std::vector<LineConverter::LinFault>& faults,
                                           const LinetypeSources& sources);

/// What the reading that forgives has made of them: warnings that say what was left out and what was read
/// how.
std::vector<Finding> ForgivenLinetypeFaults(const std::string& file,
                                            const std::vector<LineConverter::LinFault>& faults,
                                            const LinetypeSources& sources);

/// "linetype GAS"
std::string LinetypeItem(const std::string& name);

} // namespace styleconv
