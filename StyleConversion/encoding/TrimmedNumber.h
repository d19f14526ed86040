// The trimmed fixed-point form of a number: five decimals, cut at the leftmost zero behind the first.
#pragma once

#include <cstddef>
#include <string>

namespace encoding {

/// The longest text of a finite double: sign, 309 digits before the point, the point and five decimals.
constexpr std::size_t kLongestTrimmed = 1 + 309 + 1 + 5;

/// Writes `value` with "%.5f" and cuts the text at the leftmost zero among its second to fifth decimals, so
/// that at least one decimal stays: 0 is "0.0", 1.25 is "1.25", and 2.10305 is "2.1". Infinities and NaN are
/// "inf", "-inf", "nan" and "-nan". No locale changes the text. Nothing is cut where exact numbers are in use
/// (ExactNumbers.h).
std::wstring Double2TrimmedString(double value);

/// Writes it, without a terminator, to where there is room for kLongestTrimmed characters. Returns its end.
wchar_t* WriteTrimmed(wchar_t* target, double value);

} // namespace encoding
