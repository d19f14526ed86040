// The numbers on the line of a family, as text has them.
#pragma once

#include "StyleConversion/pattern/PatternError.h"

#include <array>
#include <string_view>
#include <vector>

namespace pattern {

/// In their order: the first five have a meaning each.
struct FamilyNumbers {
    std::array<double, 5> leading{};
    std::vector<double> dashes;

    friend bool operator==(const FamilyNumbers&, const FamilyNumbers&) = default;
};

/// What stands between commas, each read as far as it is a number; what is missing or none is 0.
FamilyNumbers ReadNumbers(std::string_view line);

/// The same without a remark behind the numbers, and with a dash list that ends at an empty number. Adds what
/// is not as it should be.
FamilyNumbers ReadNumbersLoosely(std::string_view line, std::vector<PatternError>& errors);

/// Multiplies all but the angle.
void ScaleLengths(FamilyNumbers& numbers, double factor);

} // namespace pattern
