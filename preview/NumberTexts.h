// Numbers as they stand in pictures and captions.
#pragma once

#include <string>

namespace preview {

/// Appends a coordinate or length in pixels, rounded to hundredths: "12.5", "-0.07", "3". What is not finite
/// is 0, and magnitudes are held below 1e7.
void AppendPixels(std::string& text, double pixels);

/// The same from whole hundredths.
void AppendHundredths(std::string& text, long long hundredths);

/// A length in whole hundredths of a pixel, held within the range above.
long long ToHundredths(double pixels);

/// A value that a person reads: four significant digits.
std::string ShownNumber(double value);

/// A value for a program to read: fifteen significant digits.
std::string ExactNumber(double value);

} // namespace preview
