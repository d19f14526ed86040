// styleconv patterns: hatch patterns to area symbols.
#pragma once

#include "styleconv/Command.h"
#include "styleconv/Finding.h"
#include "styleconv/InputFile.h"

#include <string>
#include <vector>

namespace styleconv {

/// Adds the command to the command line.
void AddPatternsCommand(CommandLine& line);

/// Appends what is wrong with a pattern file that was read, or will surprise.
void CheckPatterns(const InputFile& input, std::vector<Finding>& findings);

/// The names of the patterns of a file that was read, in the order in which they are converted, as UTF-8.
/// False, after saying why, when the file has none or cannot be read whole.
bool ListPatterns(const InputFile& input, std::vector<std::string>& names);

} // namespace styleconv
