// styleconv linetypes: linetypes to line symbols.
#pragma once

#include "styleconv/Command.h"
#include "styleconv/InputFile.h"

#include <string>
#include <vector>

namespace styleconv {

/// Adds the command to the command line.
void AddLinetypesCommand(CommandLine& line);

/// The names of the linetypes of a file that was read, in file order, as UTF-8. Styles and shape files need
/// not be there. False, after saying why, when the file has none or cannot be read whole.
bool ListLinetypes(const InputFile& input, std::vector<std::string>& names);

} // namespace styleconv
