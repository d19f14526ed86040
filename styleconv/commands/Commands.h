// The commands of the tool. Each stands in a file of its own.
#pragma once

#include "styleconv/commands/CommandLine.h"

namespace styleconv {

/// Each adds its command to the command line.
void AddConvertCommand(CommandLine& line);
void AddShowCommand(CommandLine& line);
void AddLinetypesCommand(CommandLine& line);
void AddPatternsCommand(CommandLine& line);
void AddBlocksCommand(CommandLine& line);
void AddDrawingCommand(CommandLine& line);
void AddGlyphsCommand(CommandLine& line);
void AddListCommand(CommandLine& line);
void AddCheckCommand(CommandLine& line);

} // namespace styleconv
