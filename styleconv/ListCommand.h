// styleconv list: the names of what a file holds.
#pragma once

#include "styleconv/Command.h"

namespace styleconv {

/// Adds the command to the command line.
void AddListCommand(CommandLine& line);

} // namespace styleconv
