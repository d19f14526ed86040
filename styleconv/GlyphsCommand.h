// styleconv glyphs: the shapes of a shape file, drawn.
#pragma once

#include "styleconv/Command.h"
#include "styleconv/InputFile.h"

#include <string>
#include <vector>

namespace styleconv {

/// Adds the command to the command line.
void AddGlyphsCommand(CommandLine& line);

/// The names of the shapes of a file that was read, in file order, as UTF-8; a shape without a name has no
/// line. False, after saying why, when the file is refused or has no shapes.
bool ListShapes(const InputFile& input, std::vector<std::string>& names);

} // namespace styleconv
