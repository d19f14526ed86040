// Which characters of the texts of linetypes their fonts lack.
#pragma once

#include "StyleConversion/linetype/LinParser.h"
#include "styleconv/Finding.h"

#include <string>
#include <vector>

namespace styleconv {

/// Adds a finding for each text whose SHX font lacks characters of it, which a conversion passes over in
/// silence. `parser` has resolved what the file names; `consequence` ends each message.
void AddLackedCharacters(const std::string& file, const LineConverter::LinParser& parser, Severity severity,
                         const std::string& consequence, std::vector<Finding>& findings);

} // namespace styleconv
