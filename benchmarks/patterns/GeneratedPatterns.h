// Pattern files of any size for measuring.
#pragma once

#include <cstddef>
#include <string>

/// The text of a file of `patterns` patterns with six families each: continuous lines, stacked joints, two
/// families of one rotated tile, and two whose tiles are searched for to the end. The same for each call.
std::string GeneratePatterns(std::size_t patterns);
