// The general form of a number: 15 significant digits without trailing zeros ("%.15g").
#pragma once

#include <cstddef>

namespace encoding {

/// The longest text that WriteGeneral makes: "-1.23456789012345e+308".
constexpr std::size_t kLongestGeneral = 22;

/// Writes what printf's "%.15g" gives in the "C" locale, for every double, without a terminator. `target` has
/// room for kLongestGeneral characters. Returns the end of the text.
wchar_t* WriteGeneral(wchar_t* target, double value);

} // namespace encoding
