// styleconv check: what is wrong with files, or will surprise.
#pragma once

#include "styleconv/Command.h"

namespace styleconv {

/// Adds the command to the command line.
void AddCheckCommand(CommandLine& line);

} // namespace styleconv
