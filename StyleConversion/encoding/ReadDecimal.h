// The digits of a decimal number as the nearest double.
#pragma once

#include <charconv>

namespace encoding {

/// What std::from_chars does with a double, for text that begins with a digit, or with a point and a digit.
/// Whether a value out of range is told as such or read as infinity or zero is the system's.
std::from_chars_result ReadDecimal(const char* first, const char* last, double& value);

} // namespace encoding
