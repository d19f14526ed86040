// Reads decimal numbers as C's functions do in the "C" locale.
#pragma once

#include <cstddef>
#include <string_view>

namespace encoding {

/// The value that a reading found and how many characters it used, white space included; 0 when there is
/// none.
struct NumberReading {
    double value = 0.0;
    std::size_t used = 0;
};

/// Reads the longest number at the start of `text`: white space (bytes 9 to 13 and 32), a sign, digits with
/// at most one point among them, and an exponent where it is whole ("1e," reads 1 and stops at the "e").
/// Hexadecimal numbers, "inf" and "nan" are not numbers. A value out of range reads as infinity or zero with
/// its sign.
NumberReading ReadNumber(std::string_view text);

/// The same, but for an exponent that is not whole: it makes the text no number ("1e,", "1e+"), as it does
/// for C's functions that scan.
NumberReading ScanNumber(std::string_view text);

} // namespace encoding
