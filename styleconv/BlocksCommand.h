// styleconv blocks: blocks of a drawing to point symbols.
#pragma once

#include "styleconv/Command.h"
#include "styleconv/InputFile.h"

#include <string>
#include <vector>

namespace styleconv {

/// Adds the command to the command line.
void AddBlocksCommand(CommandLine& line);

/// The names of the blocks of a drawing document that was read, those that can be converted, in table order,
/// as UTF-8. False, after saying why, when the drawing has none or is refused.
bool ListBlocks(const InputFile& input, std::vector<std::string>& names);

} // namespace styleconv
