// How many characters of ASCII and of Latin-1 a font has, and which it lacks.
#pragma once

#include "StyleConversion/shx/ShapesInFile.h"

#include <string>
#include <vector>

namespace conversions {

/// The characters that a person can type (ASCII has 95, Latin-1 another 96) and texts of linetypes find in
/// the font: how many of either, as texts, and the rest in ranges, as ": lacks U+007B to U+007D, U+00A0".
/// That is empty where none is lacking.
std::vector<std::string> FontCoverage(const ShxUtility::ShapesInFile& font);

} // namespace conversions
