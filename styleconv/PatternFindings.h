// What is wrong with a pattern file, and how well the tiles of its families close.
#pragma once

#include "StyleConversion/pattern/PatternFile.h"
#include "styleconv/Finding.h"

#include <string>
#include <vector>

namespace styleconv {

/// What a strict reading makes of a file that was read under a policy that forgives, by line. Tiles that
/// close are notes.
std::vector<Finding> CheckedPatterns(const std::string& fileName, const pattern::PatternFile& file,
                                     const pattern::PatternReading& reading);

/// What the reading that forgives has made of it, and which families it leaves out: warnings.
std::vector<Finding> ForgivenPatternSlips(const std::string& fileName, const pattern::PatternFile& file,
                                          const pattern::PatternReading& reading);

/// "pattern BRICK"
std::string PatternItem(const std::string& name);

} // namespace styleconv
