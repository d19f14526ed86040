// A number of a symbol that was cut as it was written.
#pragma once

#include <string>

namespace conversions {

/// A number of a symbol beside the one that it stands for.
struct CutNumber {
    double exact = 0.0;
    double written = 0.0;
};

/// ": 0.105 is written 0.1"
std::string TextOf(const CutNumber& number);

/// From these shares on, what is drawn out of place is an error, and a warning.
inline constexpr double kErrorShare = 0.1;
inline constexpr double kWarningShare = 0.01;

/// "48 %", and "more than 1000 %".
std::string PercentText(double share);

} // namespace conversions
