// How much work it is to draw shapes.
#pragma once

#include "StyleConversion/shx/ShapeFilePolicy.h"
#include "StyleConversion/shx/ShapesInFile.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace fuzzing {

/// Instructions, those of subshapes included, that the targets draw for one shape. Shapes that draw on
/// without end are what the format allows and no finding.
inline constexpr std::size_t kMostInstructions = 20'000;

/// Whether drawing the program, in a file of that kind, takes no more instructions than `budget`, which is
/// lessened by those that it takes.
bool FitsBudget(const ShxUtility::ShapesInFile& file, const std::uint8_t* program, std::size_t size,
                std::int32_t kind, std::size_t& budget);

/// Whether all shapes of a file together take no more than kMostInstructions.
bool AllFitBudget(const ShxUtility::ShapesInFile& file);

/// Whether all shapes of the file of these bytes do, as far as the policy reads it. A text draws a shape for
/// each of its characters, so that a shape alone says too little.
bool AllFitBudget(std::string_view shapeFile, const ShxUtility::ShapeFilePolicy& policy = {});

} // namespace fuzzing
