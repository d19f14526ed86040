// Numbers as the files of map programs take them everywhere.
#pragma once

#include <string>

namespace styles {

/// Fifteen significant digits in fixed notation, since not every reader knows exponents: "0.001", "-12.5",
/// "30000000". What is below 1e-12, or not finite, is "0".
std::string PlainNumber(double value);

} // namespace styles
