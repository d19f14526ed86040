// The numbers that a symbol holds as text, and what writing them alone takes.
#pragma once

#include "TylModel/TylModel.h"

#include <vector>

/// All numbers of the paths' geometries, in order.
std::vector<double> NumbersOf(TylModel::SimpleSymbolDefinition& symbol);

/// Seconds of processor time to write the numbers into one buffer with five decimals: with the standard
/// library's formatter, and with the project's own into one growing string.
double TimeOfStandardFormatting(const std::vector<double>& numbers);
double TimeOfTrimmedFormatting(const std::vector<double>& numbers);

/// Seconds of processor time of this process so far.
double ProcessorTime();
